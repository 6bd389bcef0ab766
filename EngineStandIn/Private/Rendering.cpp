#include "Application/SlateApplicationBase.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/SlateRenderer.h"
#include "StandIn/Records/TextureReloadRecord.h"
#include "StandIn/World.h"

namespace
{
	// The renderer of the editor's window: it only records what it is asked to do.
	class FStandInRenderer : public FSlateRenderer
	{
	public:
		virtual void ReloadTextureResources() override
		{
			StandIn::AppendToJournal(std::make_shared<StandIn::FTextureReloadRecord>());
		}
	};
}

FSlateRenderer* FSlateApplicationBase::GetRenderer() const
{
	static FStandInRenderer Renderer;
	return &Renderer;
}

bool FSlateApplication::IsInitialized()
{
	return StandIn::GetWorld().bSlateInitialized;
}
