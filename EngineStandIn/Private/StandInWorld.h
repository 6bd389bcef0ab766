#pragma once

// What the stand-in's own units share about the world; not part of the control surface.
#include "CoreMinimal.h"
#include <string>

namespace StandInWorld
{
	// Host path of a Windows path, relative paths taken from the editor's current directory.
	std::string ToHost(const TCHAR* WindowsPath);
	// The editor's current directory on the host (the binaries folder), if it exists there.
	std::string CurrentDirectoryOnHost();
}

namespace StandInJournal
{
	// Forgets every record; a world reset starts an empty journal.
	void Clear();
}

namespace StandInPlugins
{
	// A world reset starts with no plugins discovered and nothing but /Engine/ and /Game/ mounted.
	void Forget();
	void ForgetMountPoints();
}

namespace StandInTabs
{
	// A world reset starts with no tab spawners, window sizes or open tabs.
	void Forget();
}
