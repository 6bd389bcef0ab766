#pragma once

#include "PakingDialogDriver.h"
#include "SandboxTest.h"
#include "UGCPaking.h"
#include <optional>
#include <ostream>
#include <string>
#include <vector>

// One plugin of the list the pipeline held when its run ended, in plain strings so that it compares
// case-sensitively and prints readably.
struct FHandedPlugin
{
	std::string Name;
	bool bOriginal = false;
	std::vector<std::string> RequiredDLCs;

	bool operator==(const FHandedPlugin& Other) const { return Name == Other.Name && bOriginal == Other.bOriginal && RequiredDLCs == Other.RequiredDLCs; }
};
void PrintTo(const FHandedPlugin& Plugin, std::ostream* Stream);

struct FHandedRun
{
	std::vector<FHandedPlugin> Plugins;
	bool bCalverly5Plugin = false;
};

// A paking dialog opened the way the "Distribute" command opens it, and the ways to its widgets.
class FPakingDialogTest : public FSandboxTest
{
protected:
	void TearDown() override;

	// Leaves the development asset registry where discovery looks for it.
	void CookPlugin(const std::string& Name) const;
	// Opens the dialog through FUGCPaking::OpenPakingDialog and keeps the newest window's content.
	TSharedRef<SWidget> OpenDialog();
	// A dialog built directly, without a pipeline object.
	void BuildDialogWithoutPipeline(const std::vector<std::string>& CookedPlugins);

	// The widgets, reached as the headless editor reaches them.
	FPakingDialogDriver Driver() const { return FPakingDialogDriver(Dialog.ToSharedRef()); }
	TSharedRef<SWidget> GridCell(int32 Column, int32 Row) const { return Driver().GridCell(Column, Row); }
	TSharedRef<SWidget> AddPluginButton() const { return Driver().AddPluginButton(); }
	TSharedRef<SWidget> EntriesBox() const { return Driver().EntriesBox(); }
	TSharedRef<SWidget> EditionCheckBox() const { return Driver().EditionCheckBox(); }
	TSharedRef<SWidget> DistributeButton() const { return Driver().DistributeButton(); }
	TSharedRef<SWidget> ResetButton() const { return Driver().ResetButton(); }
	TSharedRef<SWidget> Combo(int32 Entry) const { return Driver().Combo(Entry); }
	TSharedRef<SWidget> ComboFace(int32 Entry) const { return Driver().ComboFace(Entry); }
	TSharedRef<SWidget> OriginalCheckBox(int32 Entry) const { return Driver().OriginalCheckBox(Entry); }
	TSharedRef<SWidget> DLCTextBox(int32 Entry) const { return Driver().DLCTextBox(Entry); }
	size_t EntryCount() const { return Driver().EntryCount(); }

	// Clicks "Add Plugin", then picks the plugin (none when empty), ticks "Original Plugin" and commits the
	// DLC text as asked; false when the plugin was not among the options.
	bool AddEntry(const std::string& Plugin, bool bOriginal = false, const std::string& DLCs = std::string()) { return Driver().AddEntry(Plugin, bOriginal, DLCs.empty() ? nullptr : &DLCs); }

	// Clicks "Distribute" and gives the plugin list and edition flag the pipeline held when its run ended
	// (it empties the list right after), or nothing when no run ended.
	std::optional<FHandedRun> DistributeAndSeeWhatThePipelineGot();
	static std::vector<std::string> OptionTexts(const TSharedRef<SWidget>& ComboBox) { return FPakingDialogDriver::OptionTexts(ComboBox); }
	static TSharedRef<SWidget> Child(const TSharedRef<SWidget>& Widget, int32 Index) { return FPakingDialogDriver::Child(Widget, Index); }
	static std::string Shown(const TSharedRef<SWidget>& Widget) { return Utf8(StandIn::ShownText(Widget)); }
	static std::vector<EAppMsgType::Type> MessageBoxTypes();

	size_t JournalMark() const { return StandIn::Journal().size(); }

	TSharedPtr<FUGCPaking> Paking;
	TSharedPtr<SWidget> Dialog;
};
