#pragma once

#include "CoreMinimal.h"
#include "StandIn/Journal.h"

namespace StandIn
{
	// The renderer was asked to load every texture again from its file.
	class FTextureReloadRecord : public FJournalRecord
	{
	public:
		// "Renderer: ReloadTextureResources"
		std::string Describe() const override { return "Renderer: ReloadTextureResources"; }
		// Not shown in the editor.
		std::string ShownLine() const override { return std::string(); }
	};
}
