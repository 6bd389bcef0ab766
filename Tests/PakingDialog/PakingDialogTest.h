#pragma once

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

	// The active culture translates the localised text of this namespace and key; call before anything
	// else, as it starts a fresh world.
	void Translate(const std::string& Namespace, const std::string& Key, const std::string& Translation);
	// Leaves the development asset registry where discovery looks for it.
	void CookPlugin(const std::string& Name) const;
	// Opens the dialog through FUGCPaking::OpenPakingDialog and keeps the newest window's content.
	TSharedRef<SWidget> OpenDialog();
	// A dialog built directly, without a pipeline object.
	void BuildDialogWithoutPipeline(const std::vector<std::string>& CookedPlugins);

	TSharedRef<SWidget> GridCell(int32 Column, int32 Row) const;
	TSharedRef<SWidget> AddPluginButton() const { return GridCell(0, 0); }
	TSharedRef<SWidget> EntriesBox() const { return GridCell(0, 1); }
	TSharedRef<SWidget> EditionCheckBox() const { return Child(GridCell(0, 9), 1); }
	TSharedRef<SWidget> DistributeButton() const { return GridCell(0, 10); }
	TSharedRef<SWidget> ResetButton() const { return GridCell(1, 10); }

	// An entry's widgets; entry N owns slots 2N and 2N+1 of the entries box.
	TSharedRef<SWidget> Combo(int32 Entry) const { return Child(Child(EntriesBox(), 2 * Entry), 0); }
	TSharedRef<SWidget> ComboFace(int32 Entry) const { return Child(Child(Combo(Entry), 0), 0); }
	TSharedRef<SWidget> OriginalCheckBox(int32 Entry) const { return Child(Child(Child(EntriesBox(), 2 * Entry), 1), 1); }
	TSharedRef<SWidget> DLCTextBox(int32 Entry) const { return Child(Child(EntriesBox(), 2 * Entry + 1), 1); }
	size_t EntryCount() const { return StandIn::ChildSlots(EntriesBox()).size() / 2; }

	// Clicks "Add Plugin", then picks the plugin (none when empty), ticks "Original Plugin" and commits the
	// DLC text as asked; false when the plugin was not among the options.
	bool AddEntry(const std::string& Plugin, bool bOriginal = false, const std::string& DLCs = std::string());

	// Clicks "Distribute" and gives the plugin list and edition flag the pipeline held when its run ended
	// (it empties the list right after), or nothing when no run ended.
	std::optional<FHandedRun> DistributeAndSeeWhatThePipelineGot();
	// The option texts the combo box lists when it opens.
	static std::vector<std::string> OptionTexts(const TSharedRef<SWidget>& ComboBox);

	static TSharedRef<SWidget> Child(const TSharedRef<SWidget>& Widget, int32 Index);
	static std::string Utf8(const FText& Text) { return StandIn::ToUtf8(Text.ToString()); }
	static std::string Shown(const TSharedRef<SWidget>& Widget) { return Utf8(StandIn::ShownText(Widget)); }
	static std::vector<EAppMsgType::Type> MessageBoxTypes();

	size_t JournalMark() const { return StandIn::Journal().size(); }

	TSharedPtr<FUGCPaking> Paking;
	TSharedPtr<SWidget> Dialog;
};
