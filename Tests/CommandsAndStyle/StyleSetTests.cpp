#include "CommandsAndStyleTest.h"
#include "StandIn/Records/TextureReloadRecord.h"
#include "Styling/SlateBrush.h"
#include "Styling/StyleDefaults.h"
#include "Textures/SlateIcon.h"

TEST_F(FCommandsAndStyleTest, StyleSetHoldsTheThreeCommandIconsFromTheProjectsResources)
{
	FUGCEditorStyle::Initialize();

	EXPECT_EQ(Utf8(FUGCEditorStyle::GetStyleSetName()), "UGCEditorStyle");
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("UGCEditorStyle")), &FUGCEditorStyle::Get());
	EXPECT_EQ(Utf8(FUGCEditorStyle::Get().GetStyleSetName()), "UGCEditorStyle");
	const std::pair<const char*, std::string> Brushes[] = {
		{"UGCEditor.PackageUGCAction", "../../../Moravane/Resources/PackageUGC_64x.png"},
		{"UGCEditor.CreateUGCAction", "../../../Moravane/Resources/CreateUGC_64x.png"},
		{"UGCEditor.PakingUGCAction", "../../../Moravane/Resources/DistributeUGC_64x.png"},
	};
	for (const std::pair<const char*, std::string>& Expected : Brushes)
	{
		SCOPED_TRACE(Expected.first);
		const FSlateBrush* Brush = FUGCEditorStyle::Get().GetOptionalBrush(Expected.first, nullptr, nullptr);
		ASSERT_NE(Brush, nullptr);
		EXPECT_EQ(Utf8(Brush->GetResourceName()), Expected.second);
		EXPECT_EQ(Brush->GetImageSize(), FVector2D(40.0f, 40.0f));
		EXPECT_EQ(Brush->TintColor.GetSpecifiedColor(), FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
		EXPECT_EQ(Brush->GetTiling(), ESlateBrushTileType::NoTile);
		EXPECT_EQ(Brush->GetImageType(), ESlateBrushImageType::FullColor);
		EXPECT_EQ(Brush->GetDrawType(), ESlateBrushDrawType::Image);
	}
}

TEST_F(FCommandsAndStyleTest, ProjectOnAnotherDriveGivesAbsoluteIconPaths)
{
	StandIn::FWorld World = DefaultWorld();
	World.ProjectFilePath = TEXT("D:/Proj/Proj.uproject");
	ResetWorld(World);

	FUGCEditorStyle::Initialize();

	const FSlateBrush* Brush = FUGCEditorStyle::Get().GetOptionalBrush("UGCEditor.CreateUGCAction", nullptr, nullptr);
	ASSERT_NE(Brush, nullptr);
	EXPECT_EQ(Utf8(Brush->GetResourceName()), "D:/Proj/Resources/CreateUGC_64x.png");
}

TEST_F(FCommandsAndStyleTest, FolderIconIsNotInTheStyleSetAndDrawsNothing)
{
	FUGCEditorStyle::Initialize();

	EXPECT_EQ(FSlateIcon(FUGCEditorStyle::GetStyleSetName(), "UGCEditor.Folder").GetIcon(), FStyleDefaults::GetNoBrush());
	EXPECT_EQ(FUGCEditorStyle::Get().GetOptionalBrush("UGCEditor.Folder", nullptr, nullptr), nullptr);
}

TEST_F(FCommandsAndStyleTest, SecondInitializeChangesNothing)
{
	FUGCEditorStyle::Initialize();
	const ISlateStyle* First = &FUGCEditorStyle::Get();
	const FSlateBrush* FirstBrush = First->GetBrush("UGCEditor.CreateUGCAction");

	FUGCEditorStyle::Initialize();

	EXPECT_EQ(&FUGCEditorStyle::Get(), First);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("UGCEditorStyle")), First);
	EXPECT_EQ(FUGCEditorStyle::Get().GetBrush("UGCEditor.CreateUGCAction"), FirstBrush);
}

TEST_F(FCommandsAndStyleTest, ShutdownUnregistersTheStyleSet)
{
	FUGCEditorStyle::Initialize();
	FUGCEditorStyle::Shutdown();

	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("UGCEditorStyle")), nullptr);
	EXPECT_EQ(FSlateIcon(TEXT("UGCEditorStyle"), TEXT("UGCEditor.CreateUGCAction")).GetIcon(), FStyleDefaults::GetNoBrush());
}

TEST_F(FCommandsAndStyleTest, ShutdownWithoutInitializeStopsTheProgram)
{
	EXPECT_DEATH(FUGCEditorStyle::Shutdown(), "Assertion failed");
}

TEST_F(FCommandsAndStyleTest, ReloadTexturesAsksTheRendererWhenSlateIsUp)
{
	StandIn::FWorld World = DefaultWorld();
	World.bSlateInitialized = true;
	ResetWorld(World);
	FUGCEditorStyle::Initialize();

	FUGCEditorStyle::ReloadTextures();

	EXPECT_EQ(StandIn::JournalRecords<StandIn::FTextureReloadRecord>().size(), 1u);
}

TEST_F(FCommandsAndStyleTest, ReloadTexturesDoesNothingWithoutSlate)
{
	FUGCEditorStyle::Initialize();

	FUGCEditorStyle::ReloadTextures();

	EXPECT_TRUE(StandIn::JournalRecords<StandIn::FTextureReloadRecord>().empty());
}

// With the renderer up, registering the style loads its images at once; a missing one is only logged.
TEST_F(FCommandsAndStyleTest, RegisteringTheStyleLogsEachIconFileThatIsMissing)
{
	StandIn::FWorld World = DefaultWorld();
	World.bSlateInitialized = true;
	ResetWorld(World);
	InstallStyleImages();
	std::filesystem::remove(Host("C:/Work/Moravane/Resources/PackageUGC_64x.png"));
	WriteFile("C:/Work/Moravane/Resources/DistributeUGC_64x.png", "not an image");

	FUGCEditorStyle::Initialize();

	EXPECT_EQ(LogLines(), (std::vector<std::string>{
							  "LogSlate: Could not find file for Slate resource: ../../../Moravane/Resources/PackageUGC_64x.png",
							  "LogSlate: Only pngs are supported in Slate",
						  }));
}

TEST_F(FCommandsAndStyleTest, RegisteringTheStyleWithoutTheRendererLoadsNothing)
{
	FUGCEditorStyle::Initialize();

	EXPECT_TRUE(LogLines().empty());
}
