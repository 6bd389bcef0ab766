#pragma once

// The engine's Plugin Browser module as the stand-in has it: the new-plugin wizard in a dock tab.
#include "IPluginBrowser.h"

namespace StandInPluginBrowser
{
	IPluginBrowser& Module();
}
