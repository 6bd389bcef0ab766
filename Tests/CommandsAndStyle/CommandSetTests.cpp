#include "CommandsAndStyleTest.h"
#include "Styling/StyleDefaults.h"
#include "Textures/SlateIcon.h"

TEST_F(FCommandsAndStyleTest, CommandIconsDrawNothingWhileTheStyleSetIsNotRegistered)
{
	FUGCEditorCommands::Register();
	EXPECT_EQ(FUGCEditorCommands::Get().CreateUGCAction->GetIcon().GetIcon(), FStyleDefaults::GetNoBrush());
}

TEST_F(FCommandsAndStyleTest, SecondRegisterChangesNothing)
{
	int Announcements = 0;
	const FDelegateHandle Handle = FBindingContext::CommandsChanged.AddLambda([&Announcements](const FBindingContext& Context) {
		++Announcements;
	});
	FUGCEditorCommands::Register();
	const FUGCEditorCommands* First = &FUGCEditorCommands::Get();
	const TSharedPtr<FUICommandInfo> FirstCreate = First->CreateUGCAction;

	FUGCEditorCommands::Register();
	FBindingContext::CommandsChanged.Remove(Handle);

	EXPECT_EQ(&FUGCEditorCommands::Get(), First);
	EXPECT_EQ(FUGCEditorCommands::Get().CreateUGCAction, FirstCreate);
	EXPECT_EQ(FInputBindingManager::Get().FindCommandInContext(TEXT("UGCEditor"), TEXT("CreateUGCAction")), FirstCreate);
	EXPECT_EQ(Announcements, 1);
}

TEST_F(FCommandsAndStyleTest, GetBeforeRegisterStopsTheProgram)
{
	EXPECT_DEATH(FUGCEditorCommands::Get(), "Assertion failed");
}

TEST_F(FCommandsAndStyleTest, UnregisterRemovesTheContextFromTheBindingManager)
{
	FUGCEditorCommands::Register();
	int Announcements = 0;
	const FDelegateHandle Handle = FBindingContext::CommandsChanged.AddLambda([&Announcements](const FBindingContext& Context) {
		++Announcements;
	});
	FUGCEditorCommands::Unregister();
	FBindingContext::CommandsChanged.Remove(Handle);

	EXPECT_FALSE(FUGCEditorCommands::IsRegistered());
	EXPECT_FALSE(FInputBindingManager::Get().GetContextByName(TEXT("UGCEditor")).IsValid());
	EXPECT_FALSE(FInputBindingManager::Get().FindCommandInContext(TEXT("UGCEditor"), TEXT("CreateUGCAction")).IsValid());
	EXPECT_EQ(Announcements, 1);
}

TEST_F(FCommandsAndStyleTest, PluginCommandsFollowTheInputOrderWithTheBaseDirectoryAsTooltipAndNoIcon)
{
	FUGCEditorStyle::Initialize();
	FUGCEditorCommands::Register();
	const TArray<TSharedRef<IPlugin>> Plugins = {
		MakeShared<FTestPlugin>(TEXT("Zeta_Route"), TEXT("../../../Moravane/Mods/Zeta_Route")),
		MakeShared<FTestPlugin>(TEXT("Alpha"), TEXT("../../../Moravane/Plugins/Alpha")),
		MakeShared<FTestPlugin>(TEXT("Mid"), TEXT("D:/Elsewhere/Mid")),
	};

	const TArray<TSharedPtr<FUICommandInfo>> Commands = FUGCEditorCommands::Get().RegisterUGCCommands(Plugins);

	ASSERT_EQ(Commands.Num(), 3);
	const std::string Names[] = {"Zeta_Route", "Alpha", "Mid"};
	const std::string Tooltips[] = {"../../../Moravane/Mods/Zeta_Route", "../../../Moravane/Plugins/Alpha", "D:/Elsewhere/Mid"};
	for (int32 Index = 0; Index < 3; ++Index)
	{
		SCOPED_TRACE(Names[Index]);
		const TSharedPtr<FUICommandInfo>& Command = Commands[Index];
		ASSERT_TRUE(Command.IsValid());
		EXPECT_EQ(Utf8(Command->GetCommandName()), "UGCEditorUGC_" + Names[Index]);
		EXPECT_EQ(Utf8(Command->GetLabel().ToString()), Names[Index]);
		EXPECT_FALSE(FTextInspector::GetKey(Command->GetLabel()).IsSet());
		EXPECT_EQ(Utf8(Command->GetDescription().ToString()), Tooltips[Index]);
		EXPECT_FALSE(FTextInspector::GetKey(Command->GetDescription()).IsSet());
		EXPECT_EQ(Command->GetUserInterfaceType(), EUserInterfaceActionType::Button);
		EXPECT_FALSE(Command->GetIcon().IsSet());
		EXPECT_EQ(Command->GetIcon().GetIcon(), FStyleDefaults::GetNoBrush());
		EXPECT_EQ(FInputBindingManager::Get().FindCommandInContext(TEXT("UGCEditor"), Command->GetCommandName()), Command);
	}
}

TEST_F(FCommandsAndStyleTest, NoPluginsRegisterNoCommands)
{
	FUGCEditorCommands::Register();
	const TArray<TSharedPtr<FUICommandInfo>> Commands = FUGCEditorCommands::Get().RegisterUGCCommands(TArray<TSharedRef<IPlugin>>());

	EXPECT_EQ(Commands.Num(), 0);
	TArray<TSharedPtr<FUICommandInfo>> InContext;
	FInputBindingManager::Get().GetCommandInfosFromContext(TEXT("UGCEditor"), InContext);
	EXPECT_EQ(InContext.Num(), 3);
}

TEST_F(FCommandsAndStyleTest, UnregisteringPluginCommandsLeavesTheSetsOwnCommands)
{
	FUGCEditorCommands::Register();
	const TArray<TSharedRef<IPlugin>> Plugins = {
		MakeShared<FTestPlugin>(TEXT("A"), TEXT("../../../Moravane/Plugins/A")),
		MakeShared<FTestPlugin>(TEXT("B"), TEXT("../../../Moravane/Plugins/B")),
	};
	const TArray<TSharedPtr<FUICommandInfo>> Commands = FUGCEditorCommands::Get().RegisterUGCCommands(Plugins);

	FUGCEditorCommands::Get().UnregisterUGCCommands(Commands);

	TArray<TSharedPtr<FUICommandInfo>> InContext;
	FInputBindingManager::Get().GetCommandInfosFromContext(TEXT("UGCEditor"), InContext);
	ASSERT_EQ(InContext.Num(), 3);
	EXPECT_EQ(InContext[0], FUGCEditorCommands::Get().CreateUGCAction);
	EXPECT_FALSE(FInputBindingManager::Get().FindCommandInContext(TEXT("UGCEditor"), TEXT("UGCEditorUGC_A")).IsValid());
	EXPECT_FALSE(FInputBindingManager::Get().FindCommandInContext(TEXT("UGCEditor"), TEXT("UGCEditorUGC_B")).IsValid());
}

TEST_F(FCommandsAndStyleTest, NullCommandHandedToUnregisterUGCCommandsStopsTheProgram)
{
	FUGCEditorCommands::Register();
	const TArray<TSharedPtr<FUICommandInfo>> Commands = {TSharedPtr<FUICommandInfo>()};
	EXPECT_DEATH(FUGCEditorCommands::Get().UnregisterUGCCommands(Commands), "Assertion failed");
}
