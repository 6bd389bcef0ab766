#include "CommandsAndStyleTest.h"
#include "StandIn/Records/TextureReloadRecord.h"
#include "Styling/SlateBrush.h"
#include "Styling/StyleDefaults.h"
#include "Textures/SlateIcon.h"

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
