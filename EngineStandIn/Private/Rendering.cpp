#include "Application/SlateApplicationBase.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateBrush.h"
#include "StandIn/Records/TextureReloadRecord.h"
#include "StandIn/World.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
#include <memory>
#include <algorithm>
#include <png.h>
#include <string>

DEFINE_LOG_CATEGORY_STATIC(LogSlate, Log, All);

namespace
{
	enum class EImageLoad
	{
		Loaded,
		NoFile,
		NotPng,
	};

	// Reads the PNG file that the resource name gives, through the platform-file chain as the engine's
	// file helper does, for the image's size.
	EImageLoad LoadImage(const FName& ResourceName, FIntPoint& OutSize)
	{
		std::unique_ptr<IFileHandle> Handle(FPlatformFileManager::Get().GetPlatformFile().OpenRead(*ResourceName.ToString(), false));
		if (!Handle)
		{
			return EImageLoad::NoFile;
		}
		std::string Bytes((size_t)std::max<int64>(Handle->Size(), 0), '\0');
		if (Bytes.empty() || !Handle->Read((uint8*)Bytes.data(), (int64)Bytes.size()))
		{
			return EImageLoad::NotPng;
		}
		png_image Image = {};
		Image.version = PNG_IMAGE_VERSION;
		if (!png_image_begin_read_from_memory(&Image, Bytes.data(), Bytes.size()))
		{
			return EImageLoad::NotPng;
		}
		OutSize = FIntPoint((int32)Image.width, (int32)Image.height);
		png_image_free(&Image);
		return EImageLoad::Loaded;
	}

	// The renderer of the editor's window: it records reloads and reads the image files it is given.
	class FStandInRenderer : public FSlateRenderer
	{
	public:
		virtual void ReloadTextureResources() override
		{
			StandIn::AppendToJournal(std::make_shared<StandIn::FTextureReloadRecord>());
		}

		virtual void LoadStyleResources(const ISlateStyle& Style) override
		{
			TArray<const FSlateBrush*> Resources;
			Style.GetResources(Resources);
			TArray<FName> Requested;
			for (const FSlateBrush* Brush : Resources)
			{
				const FName ResourceName = Brush->GetResourceName();
				if (ResourceName == NAME_None || Brush->IsDynamicallyLoaded() || Requested.Contains(ResourceName))
				{
					continue;
				}
				Requested.Add(ResourceName);
				FIntPoint Size;
				switch (LoadImage(ResourceName, Size))
				{
				case EImageLoad::NoFile:
					UE_LOG(LogSlate, Log, TEXT("Could not find file for Slate resource: %s"), *ResourceName.ToString());
					break;
				case EImageLoad::NotPng:
					UE_LOG(LogSlate, Log, TEXT("Only pngs are supported in Slate"));
					break;
				case EImageLoad::Loaded:
					break;
				}
			}
		}

		// The image's own size, or 0 by 0 when it does not load.
		virtual FIntPoint GenerateDynamicImageResource(const FName InTextureName) override
		{
			FIntPoint Size(0, 0);
			return LoadImage(InTextureName, Size) == EImageLoad::Loaded ? Size : FIntPoint(0, 0);
		}
	};
}

FSlateRenderer* FSlateApplicationBase::GetRenderer() const
{
	static FStandInRenderer Renderer;
	return &Renderer;
}

FSlateApplicationBase& FSlateApplicationBase::Get()
{
	return FSlateApplication::Get();
}

bool FSlateApplicationBase::IsInitialized()
{
	return StandIn::GetWorld().bSlateInitialized;
}

bool FSlateApplication::IsInitialized()
{
	return FSlateApplicationBase::IsInitialized();
}
