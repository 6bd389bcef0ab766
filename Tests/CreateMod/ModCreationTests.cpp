#include "CreateModTest.h"
#include "Misc/PackageName.h"
#include "Widgets/Docking/SDockTab.h"
#include <nlohmann/json.hpp>

// Whole creations through the wizard of the "Create New Mod" tab, as a modder makes them.
class FModCreationTest : public FCreateModTest
{
protected:
	void OpenWizard()
	{
		Creator = std::make_unique<FUGCCreator>();
		Creator->OpenCreateModTab(false);
		ASSERT_EQ(TabRecords().size(), 1u);
		const TSharedRef<SWidget> Tab = TabRecords()[0]->Tab;
		NameBox = FindWidgets(Tab, "SEditableTextBox").at(0);
		TemplateList = FindWidgets(Tab, "SPluginTemplateList").at(0);
		CreateButton = FindWidgets(Tab, "SButton").at(0);
	}

	std::string NameError() const { return StandIn::ToUtf8(StandIn::Paint(NameBox.ToSharedRef()).ErrorText.ToString()); }
	bool CanCreate() const { return StandIn::Paint(CreateButton.ToSharedRef()).bIsEnabled; }
	void TypeName(const std::string& Name) { StandIn::CommitText(NameBox.ToSharedRef(), StandIn::FromUtf8(Name)); }
	FReply ClickCreate() { return StandIn::ClickButton(CreateButton.ToSharedRef()); }
	nlohmann::json Descriptor(const std::string& Name) const { return nlohmann::json::parse(ReadFile("C:/Work/Moravane/Plugins/" + Name + "/" + Name + ".uplugin")); }

	std::unique_ptr<FUGCCreator> Creator;
	TSharedPtr<SWidget> NameBox;
	TSharedPtr<SWidget> TemplateList;
	TSharedPtr<SWidget> CreateButton;
};

TEST_F(FModCreationTest, TheWizardListsTheTemplatesAndWaitsForAName)
{
	OpenWizard();

	EXPECT_EQ(Texts(StandIn::Paint(TemplateList.ToSharedRef()).ListRows), std::vector<std::string>({"Route", "Scenario", "ServiceMode", "Blank"}));
	EXPECT_EQ(StandIn::ToUtf8(StandIn::ShownText(CreateButton.ToSharedRef()).ToString()), "Create Plugin");
	EXPECT_FALSE(CanCreate());
	EXPECT_EQ(NameError(), "");
	EXPECT_FALSE(ClickCreate().IsEventHandled());
	EXPECT_FALSE(Exists("C:/Work/Moravane/Plugins"));
}

TEST_F(FModCreationTest, ABaseTemplateOnlyModGetsTheBaseFilesTheIconAndTheDLCCategory)
{
	OpenWizard();
	TypeName("MyRoute");
	ASSERT_TRUE(CanCreate());
	EXPECT_TRUE(ClickCreate().IsEventHandled());

	EXPECT_EQ(FilesBelow("C:/Work/Moravane/Plugins/MyRoute"), std::vector<std::string>({"Config/DefaultMyRoute.ini", "Content/README.txt", "MyRoute.uplugin", "README.txt", "Resources/Icon128.png"}));
	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/MyRoute/Resources/Icon128.png"), RepositoryFile("Templates/BaseTemplate/Resources/Icon128.png"));
	// Only file and folder names change in an .ini file; what it says stays as written.
	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/MyRoute/Config/DefaultMyRoute.ini"), RepositoryFile("Templates/BaseTemplate/Config/DefaultPLUGIN_NAME.ini"));

	const nlohmann::json Written = Descriptor("MyRoute");
	EXPECT_EQ(Written["Category"], "DLC");
	EXPECT_EQ(Written["FriendlyName"], "MyRoute");
	EXPECT_EQ(Written["Version"], 1);
	EXPECT_EQ(Written["VersionName"], "1.0");
	EXPECT_EQ(Written["CanContainContent"], true);
	EXPECT_EQ(Written["Description"], "");
	EXPECT_FALSE(Written.contains("Modules"));
}

TEST_F(FModCreationTest, ASuccessfulCreationIsAnnouncedTheTabClosesAndThePluginIsKnownAndMounted)
{
	OpenWizard();
	TypeName("MyRoute");
	ClickCreate();

	EXPECT_EQ(StandIn::JournalLines(), std::vector<std::string>({"Tab: Create New Mod (UGCPluginCreator) 800x600", "Notification: 'MyRoute' was created successfully.", "Tab closed: Create New Mod (UGCPluginCreator)"}));
	const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("MyRoute"));
	ASSERT_TRUE(Plugin.IsValid());
	EXPECT_TRUE(Plugin->IsEnabled());
	EXPECT_EQ(Plugin->GetType(), EPluginType::Project);
	EXPECT_EQ(StandIn::ToUtf8(Plugin->GetBaseDir()), "../../../Moravane/Plugins/MyRoute");
	EXPECT_EQ(StandIn::ToUtf8(Plugin->GetDescriptor().Category), "DLC");
	FString Filename;
	ASSERT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/MyRoute/Maps/Main"), Filename));
	EXPECT_EQ(StandIn::ToUtf8(Filename), "../../../Moravane/Plugins/MyRoute/Content/Maps/Main");
}

TEST_F(FModCreationTest, ChosenTemplatesAreCopiedAfterTheBaseTemplateLaterOnesReplacingEarlierOnes)
{
	OpenWizard();
	ASSERT_TRUE(StandIn::SelectListRow(TemplateList.ToSharedRef(), TEXT("Scenario")));
	ASSERT_TRUE(StandIn::SelectListRow(TemplateList.ToSharedRef(), TEXT("Route")));
	TypeName("Northline");
	ClickCreate();

	const std::vector<std::string> Files = FilesBelow("C:/Work/Moravane/Plugins/Northline");
	EXPECT_EQ(Files, std::vector<std::string>({"Config/DefaultNorthline.ini", "Content/Northline/Briefing/README.txt", "Content/Northline/Maps/README.txt", "Content/Northline/README.txt", "Content/Northline/Scenery/README.txt", "Content/Northline/Track/README.txt", "Content/README.txt", "Northline.uplugin", "README.txt", "Resources/Icon128.png"}));
	// Route came last, so its files win where Scenario's have the same path.
	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/Northline/Config/DefaultNorthline.ini"), RepositoryFile("Templates/Route/Config/DefaultPLUGIN_NAME.ini"));
	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/Northline/Content/Northline/Maps/README.txt"), RepositoryFile("Templates/Route/Content/PLUGIN_NAME/Maps/README.txt"));
	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/Northline/Content/Northline/Briefing/README.txt"), RepositoryFile("Templates/Scenario/Content/PLUGIN_NAME/Briefing/README.txt"));
}

TEST_F(FModCreationTest, TheServiceModeTemplateIsChosenByItsListedNameAndItsCodeFoundInTheFolderWithTheSpace)
{
	WriteFile("C:/Work/Moravane/Templates/Service Mode/Source/PLUGIN_NAME/PLUGIN_NAME.Build.cs", "public class PLUGIN_NAME : ModuleRules {}\n");
	OpenWizard();
	EXPECT_FALSE(StandIn::SelectListRow(TemplateList.ToSharedRef(), TEXT("Service Mode")));
	ASSERT_TRUE(StandIn::SelectListRow(TemplateList.ToSharedRef(), TEXT("ServiceMode")));
	TypeName("Timetable1");
	ClickCreate();

	EXPECT_TRUE(Exists("C:/Work/Moravane/Plugins/Timetable1/Content/Timetable1/Timetables/README.txt"));
	EXPECT_TRUE(Exists("C:/Work/Moravane/Plugins/Timetable1/Content/Timetable1/Consists/README.txt"));
	EXPECT_TRUE(Exists("C:/Work/Moravane/Plugins/Timetable1/Source/Timetable1/Timetable1.Build.cs"));
	EXPECT_TRUE(Descriptor("Timetable1").contains("Modules"));
}

TEST_F(FModCreationTest, ATemplateChosenInAClosedTabDoesNotReachTheNextTabsMod)
{
	OpenWizard();
	ASSERT_TRUE(StandIn::SelectListRow(TemplateList.ToSharedRef(), TEXT("Route")));
	TabRecords()[0]->Tab->RequestCloseTab();
	Creator->OpenCreateModTab(false);
	ASSERT_EQ(TabRecords().size(), 3u);
	const TSharedRef<SWidget> SecondTab = TabRecords()[2]->Tab;
	StandIn::CommitText(FindWidgets(SecondTab, "SEditableTextBox").at(0), TEXT("PlainMod"));
	StandIn::ClickButton(FindWidgets(SecondTab, "SButton").at(0));

	EXPECT_EQ(FilesBelow("C:/Work/Moravane/Plugins/PlainMod"), std::vector<std::string>({"Config/DefaultPlainMod.ini", "Content/README.txt", "PlainMod.uplugin", "README.txt", "Resources/Icon128.png"}));
}

TEST_F(FModCreationTest, PluginNameIsReplacedInNamesAndInsideCodeFilesOnly)
{
	WriteFile("C:/Work/Moravane/Templates/Blank/Source/PLUGIN_NAME/PLUGIN_NAME.h", "class PLUGIN_NAME_API FPLUGIN_NAMEModule; // plugin_name\n");
	WriteFile("C:/Work/Moravane/Templates/Blank/Source/PLUGIN_NAME/PLUGIN_NAME.Build.cs", "public class PLUGIN_NAME : ModuleRules {}\n");
	WriteFile("C:/Work/Moravane/Templates/Blank/Content/PLUGIN_NAME/Maps/PLUGIN_NAME_Main.umap", "map PLUGIN_NAME");
	WriteFile("C:/Work/Moravane/Templates/Blank/Content/PLUGIN_NAME/Notes_PLUGIN_NAME.txt", "PLUGIN_NAME");
	WriteFile("C:/Work/Moravane/Templates/Blank/Blank.sln.user", "user settings");
	OpenWizard();
	StandIn::SelectListRow(TemplateList.ToSharedRef(), TEXT("Blank"));
	TypeName("Signals");
	ClickCreate();

	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/Signals/Source/Signals/Signals.h"), "class SIGNALS_API FSignalsModule; // plugin_name\n");
	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/Signals/Source/Signals/Signals.Build.cs"), "public class Signals : ModuleRules {}\n");
	// Assets keep their own names and bytes; only the folders above them are renamed.
	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/Signals/Content/Signals/Maps/PLUGIN_NAME_Main.umap"), "map PLUGIN_NAME");
	EXPECT_EQ(ReadFile("C:/Work/Moravane/Plugins/Signals/Content/Signals/Notes_Signals.txt"), "PLUGIN_NAME");
	EXPECT_FALSE(Exists("C:/Work/Moravane/Plugins/Signals/Blank.sln.user"));
}

TEST_F(FModCreationTest, AChosenTemplateWithCodeMakesAModuleAndRunsTheBuildTool)
{
	WriteFile("C:/Work/Moravane/Templates/Route/Source/PLUGIN_NAME/PLUGIN_NAME.Build.cs", "public class PLUGIN_NAME : ModuleRules {}\n");
	OpenWizard();
	StandIn::SelectListRow(TemplateList.ToSharedRef(), TEXT("Route"));
	TypeName("CodeRoute");
	ClickCreate();

	const nlohmann::json Written = Descriptor("CodeRoute");
	ASSERT_TRUE(Written.contains("Modules"));
	EXPECT_EQ(Written["Modules"], nlohmann::json::parse(R"([{"Name": "CodeRoute", "Type": "Runtime", "LoadingPhase": "Default"}])"));
	EXPECT_EQ(Written["Category"], "DLC");
	const std::vector<const StandIn::FBuildToolRecord*> Builds = StandIn::JournalRecords<StandIn::FBuildToolRecord>();
	ASSERT_EQ(Builds.size(), 1u);
	EXPECT_EQ(StandIn::ToUtf8(Builds[0]->Arguments), "CalverlyPublicEditor Development Win64 -Plugin=\"C:/Work/Moravane/Plugins/CodeRoute/CodeRoute.uplugin\" -Project=\"C:/Work/Moravane/Moravane.uproject\" -Progress -NoHotReloadFromIDE");
}

TEST_F(FModCreationTest, ABaseTemplateWithCodeMakesNoModule)
{
	WriteFile("C:/Work/Moravane/Templates/BaseTemplate/Source/PLUGIN_NAME/PLUGIN_NAME.Build.cs", "public class PLUGIN_NAME : ModuleRules {}\n");
	OpenWizard();
	TypeName("PlainMod");
	ClickCreate();

	EXPECT_FALSE(Descriptor("PlainMod").contains("Modules"));
	EXPECT_TRUE(StandIn::JournalRecords<StandIn::FBuildToolRecord>().empty());
	EXPECT_TRUE(Exists("C:/Work/Moravane/Plugins/PlainMod/Source/PlainMod/PlainMod.Build.cs"));
}

// What the wizard says of a typed name: each illegal character named once, letters of every script allowed,
// punctuation beyond seven bits not, and a letter first.
TEST_F(FModCreationTest, TheWizardJudgesTheNameAsItIsTyped)
{
	const std::vector<std::pair<std::string, std::string>> Judged = {
		{"My Route-2 Route", "Plugin name cannot contain illegal characters like: \" -\""},
		{"Café–Route", "Plugin name cannot contain illegal characters like: \"–\""},
		{"_Route", "Plugin names must begin with an alphabetic character."},
		{"2Route", "Plugin names must begin with an alphabetic character."},
		{"Route_2", ""},
		{"Železnice", ""},
		{"鉄道", ""},
		{"Café", ""},
	};
	OpenWizard();
	for (const auto& [Name, Error] : Judged)
	{
		TypeName(Name);
		EXPECT_EQ(NameError(), Error) << Name;
		EXPECT_EQ(CanCreate(), Error.empty()) << Name;
		if (!Error.empty())
		{
			EXPECT_FALSE(ClickCreate().IsEventHandled()) << Name;
		}
	}
	EXPECT_FALSE(Exists("C:/Work/Moravane/Plugins"));
	ClickCreate();

	EXPECT_TRUE(Exists("C:/Work/Moravane/Plugins/Café/Café.uplugin"));
}

TEST_F(FModCreationTest, ANameADiscoveredPluginHasIsRefusedWhateverItsCase)
{
	WriteFile("C:/Work/Moravane/Mods/OldRoute/OldRoute.uplugin", "{\"FileVersion\": 3}");
	StandIn::DiscoverPlugins();
	OpenWizard();
	TypeName("oldroute");

	EXPECT_EQ(NameError(), "A plugin with this name already exists!");
	EXPECT_FALSE(CanCreate());
	ClickCreate();
	EXPECT_FALSE(Exists("C:/Work/Moravane/Plugins/oldroute"));
}

TEST_F(FModCreationTest, ANameWithADescriptorAlreadyAtThePathInAnyCaseIsRefused)
{
	WriteFile("C:/Work/Moravane/Plugins/undiscovered/undiscovered.uplugin", "{\"FileVersion\": 3}");
	OpenWizard();
	TypeName("Undiscovered");

	EXPECT_EQ(NameError(), "A plugin already exists at this path!");
	EXPECT_FALSE(CanCreate());
	ClickCreate();
	EXPECT_EQ(FilesBelow("C:/Work/Moravane/Plugins"), std::vector<std::string>({"undiscovered/undiscovered.uplugin"}));
}

TEST_F(FModCreationTest, AFailedCreationIsExplainedAndLeavesNoHalfMadeFolder)
{
	std::filesystem::remove_all(Host("C:/Work/Moravane/Templates/Scenario"));
	OpenWizard();
	StandIn::SelectListRow(TemplateList.ToSharedRef(), TEXT("Scenario"));
	TypeName("Broken");
	EXPECT_FALSE(ClickCreate().IsEventHandled());

	const std::vector<const StandIn::FMessageBoxRecord*> Boxes = StandIn::JournalRecords<StandIn::FMessageBoxRecord>();
	ASSERT_EQ(Boxes.size(), 1u);
	EXPECT_EQ(StandIn::ToUtf8(Boxes[0]->Title.ToString()), "Unable to create plugin");
	EXPECT_EQ(StandIn::ToUtf8(Boxes[0]->Message.ToString()), "Failed to copy plugin template files from 'C:/Work/Moravane/Templates/Scenario' to 'C:/Work/Moravane/Plugins/Broken'. Plugin template folder 'C:/Work/Moravane/Templates/Scenario' doesn't exist");
	EXPECT_FALSE(Exists("C:/Work/Moravane/Plugins/Broken"));
	EXPECT_FALSE(IPluginManager::Get().FindPlugin(TEXT("Broken")).IsValid());
	EXPECT_TRUE(StandIn::JournalRecords<StandIn::FNotificationRecord>().empty());
	// The tab stays open for another try.
	EXPECT_EQ(TabRecords().size(), 1u);
}
