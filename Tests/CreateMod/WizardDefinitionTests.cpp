#include "Brushes/SlateDynamicImageBrush.h"
#include "CreateModTest.h"

class FWizardDefinitionTest : public FCreateModTest
{
protected:
	// Made in the test's world: the definition takes the project folder once, as it is built.
	void SetUp() override
	{
		FCreateModTest::SetUp();
		Definition = MakeShared<FUGCPluginWizardDefinition>();
	}

	void Select(std::initializer_list<int32> Indices, ESelectInfo::Type SelectInfo = ESelectInfo::OnMouseClick)
	{
		TArray<TSharedRef<FPluginTemplateDescription>> Items;
		for (const int32 Index : Indices)
		{
			Items.Add(Definition->GetTemplatesSource()[Index]);
		}
		Definition->OnTemplateSelectionChanged(Items, SelectInfo);
	}

	TSharedPtr<FUGCPluginWizardDefinition> Definition;
};

TEST_F(FWizardDefinitionTest, EveryTemplateIsAContentTemplateWithoutADescriptionOrCode)
{
	for (const TSharedRef<FPluginTemplateDescription>& Template : Definition->GetTemplatesSource())
	{
		SCOPED_TRACE(StandIn::ToUtf8(Template->Name.ToString()));
		EXPECT_TRUE(Template->Description.IsEmpty());
		EXPECT_TRUE(Template->bCanContainContent);
		EXPECT_EQ(Template->ModuleDescriptorType, EHostType::Runtime);
		EXPECT_EQ(Template->LoadingPhase, ELoadingPhase::Default);
	}
}

TEST_F(FWizardDefinitionTest, ASelectionReplacesThePreviousOneInTheReportedOrder)
{
	Select({0, 3});
	Select({3, 1}, ESelectInfo::Direct);

	const TArray<TSharedPtr<FPluginTemplateDescription>> Selected = Definition->GetSelectedTemplates();
	ASSERT_EQ(Selected.Num(), 2);
	EXPECT_EQ(StandIn::ToUtf8(Selected[0]->Name.ToString()), "Blank");
	EXPECT_EQ(StandIn::ToUtf8(Selected[1]->Name.ToString()), "Scenario");
}

TEST_F(FWizardDefinitionTest, ASourceFolderInAChosenTemplateMakesModules)
{
	WriteFile("C:/Work/Moravane/Templates/Scenario/Source/PLUGIN_NAME/PLUGIN_NAME.Build.cs", "x");

	EXPECT_FALSE(Definition->HasModules());
	Select({0});
	EXPECT_FALSE(Definition->HasModules());
	Select({0, 1});
	EXPECT_TRUE(Definition->HasModules());
}

TEST_F(FWizardDefinitionTest, ContentIsAllowedWithoutASelectionAndWhenAChosenTemplateAllowsIt)
{
	EXPECT_TRUE(Definition->CanContainContent());

	Definition->GetTemplatesSource()[0]->bCanContainContent = false;
	Definition->GetTemplatesSource()[1]->bCanContainContent = false;
	Select({0});
	EXPECT_FALSE(Definition->CanContainContent());
	Select({0, 1});
	EXPECT_FALSE(Definition->CanContainContent());
	Select({0, 2});
	EXPECT_TRUE(Definition->CanContainContent());
}

TEST_F(FWizardDefinitionTest, TheDefinitionAnswersTheWizardsOtherQuestionsAsTheProjectWants)
{
	EXPECT_TRUE(Definition->CanShowOnStartup());
	EXPECT_EQ(Definition->GetShowOnStartupCheckBoxState(), ECheckBoxState::Unchecked);
	EXPECT_EQ(Definition->GetPluginModuleDescriptor(), EHostType::Runtime);
	EXPECT_EQ(Definition->GetPluginLoadingPhase(), ELoadingPhase::Default);
	const FText Instructions = Definition->GetInstructions();
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetNamespace(Instructions).GetValue()), "UGCPluginWizard");
	EXPECT_EQ(StandIn::ToUtf8(FTextInspector::GetKey(Instructions).GetValue()), "CreateNewUGCPanel");
}

TEST_F(FWizardDefinitionTest, TheHeaderShowsTheBaseTemplateIconAtItsOwnSizeInAFlatStrip)
{
	// A 64 by 64 icon in the base template tells its size apart from the project's 128 by 128 one.
	WriteFile("C:/Work/Moravane/Templates/BaseTemplate/Resources/Icon128.png", RepositoryFile("Resources/DistributeUGC_64x.png"));

	const TSharedPtr<SWidget> Header = Definition->GetCustomHeaderWidget();
	ASSERT_TRUE(Header.IsValid());
	ASSERT_EQ(StandIn::WidgetType(Header.ToSharedRef()), "SHorizontalBox");
	const std::vector<StandIn::FChildSlot> Slots = StandIn::ChildSlots(Header.ToSharedRef());
	ASSERT_EQ(Slots.size(), 1u);
	EXPECT_EQ(Slots[0].Padding, FMargin(4.0f));
	ASSERT_EQ(StandIn::WidgetType(Slots[0].Widget), "SBox");
	const StandIn::FPaintedWidget Box = StandIn::Paint(Slots[0].Widget);
	EXPECT_EQ(Box.WidthOverride, 80.0f);
	EXPECT_EQ(Box.HeightOverride, 10.0f);
	const std::vector<TSharedRef<SWidget>> Images = FindWidgets(Slots[0].Widget, "SImage");
	ASSERT_EQ(Images.size(), 1u);
	const FSlateBrush* Brush = StandIn::Paint(Images[0]).Image;
	ASSERT_NE(Brush, nullptr);
	EXPECT_EQ(StandIn::ToUtf8(Brush->GetResourceName().ToString()), "../../../Moravane/Templates/BaseTemplate/Resources/Icon128.png");
	EXPECT_EQ(Brush->GetImageSize().X, 64.0f);
	EXPECT_EQ(Brush->GetImageSize().Y, 64.0f);
}

TEST_F(FWizardDefinitionTest, TheHeaderIconIsMadeOnceAndKept)
{
	const FSlateBrush* First = StandIn::Paint(FindWidgets(Definition->GetCustomHeaderWidget().ToSharedRef(), "SImage").at(0)).Image;
	const FSlateBrush* Second = StandIn::Paint(FindWidgets(Definition->GetCustomHeaderWidget().ToSharedRef(), "SImage").at(0)).Image;

	ASSERT_NE(First, nullptr);
	EXPECT_EQ(First, Second);
}

TEST_F(FWizardDefinitionTest, WithoutTheIconTheHeaderIsEmptyAndTriesAgainNextTime)
{
	std::filesystem::remove(Host("C:/Work/Moravane/Templates/BaseTemplate/Resources/Icon128.png"));
	EXPECT_EQ(StandIn::Paint(FindWidgets(Definition->GetCustomHeaderWidget().ToSharedRef(), "SImage").at(0)).Image, nullptr);

	WriteFile("C:/Work/Moravane/Templates/BaseTemplate/Resources/Icon128.png", RepositoryFile("Resources/Icon128.png"));
	const FSlateBrush* Brush = StandIn::Paint(FindWidgets(Definition->GetCustomHeaderWidget().ToSharedRef(), "SImage").at(0)).Image;
	ASSERT_NE(Brush, nullptr);
	EXPECT_EQ(Brush->GetImageSize().X, 128.0f);
}
