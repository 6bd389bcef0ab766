#include "Application/SlateApplicationBase.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/SlateRenderer.h"
#include "StandIn/Records/TextureReloadRecord.h"
#include "StandIn/World.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include <memory>
#include <png.h>
#include <string>

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

		// The image's own size, read from the PNG file the name gives.
		virtual FIntPoint GenerateDynamicImageResource(const FName InTextureName) override
		{
			std::unique_ptr<IFileHandle> Handle(FPlatformFileManager::Get().GetPlatformFile().OpenRead(*InTextureName.ToString(), false));
			if (!Handle || Handle->Size() <= 0)
			{
				return FIntPoint(0, 0);
			}
			std::string Bytes((size_t)Handle->Size(), '\0');
			if (!Handle->Read((uint8*)Bytes.data(), (int64)Bytes.size()))
			{
				return FIntPoint(0, 0);
			}
			png_image Image = {};
			Image.version = PNG_IMAGE_VERSION;
			if (!png_image_begin_read_from_memory(&Image, Bytes.data(), Bytes.size()))
			{
				return FIntPoint(0, 0);
			}
			const FIntPoint Size((int32)Image.width, (int32)Image.height);
			png_image_free(&Image);
			return Size;
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
