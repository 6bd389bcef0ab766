#include "PakingDialogTest.h"
#include "SPakingDialog.h"
#include <stdexcept>

void PrintTo(const FHandedPlugin& Plugin, std::ostream* Stream)
{
	*Stream << "{\"" << Plugin.Name << "\", " << (Plugin.bOriginal ? "original" : "not original") << ", DLCs [";
	for (size_t Index = 0; Index < Plugin.RequiredDLCs.size(); ++Index)
	{
		*Stream << (Index == 0 ? "\"" : ", \"") << Plugin.RequiredDLCs[Index] << '"';
	}
	*Stream << "]}";
}

void FPakingDialogTest::TearDown()
{
	StandIn::SetJournalListener(nullptr);
	FSandboxTest::TearDown();
}

void FPakingDialogTest::Translate(const std::string& Namespace, const std::string& Key, const std::string& Translation)
{
	StandIn::FWorld World = StandIn::GetWorld();
	World.Translations[{Namespace, Key}] = Translation;
	ResetWorld(World);
}

void FPakingDialogTest::CookPlugin(const std::string& Name) const
{
	WriteFile("C:/Work/Moravane/Plugins/" + Name + "/Saved/Cooked/WindowsNoEditor/Moravane/Plugins/" + Name + "/Content/Metadata/DevelopmentAssetRegistry.bin", "registry");
}

TSharedRef<SWidget> FPakingDialogTest::OpenDialog()
{
	if (!Paking.IsValid())
	{
		Paking = MakeShared<FUGCPaking>();
	}
	Paking->OpenPakingDialog();
	Dialog = StandIn::JournalRecords<StandIn::FWindowRecord>().back()->Content;
	return Dialog.ToSharedRef();
}

void FPakingDialogTest::BuildDialogWithoutPipeline(const std::vector<std::string>& CookedPlugins)
{
	TArray<FString> Names;
	for (const std::string& Name : CookedPlugins)
	{
		Names.Add(StandIn::FromUtf8(Name));
	}
	Dialog = SNew(SPakingDialog).CookedPlugins(Names);
}

TSharedRef<SWidget> FPakingDialogTest::GridCell(int32 Column, int32 Row) const
{
	const TSharedRef<SWidget> Grid = Child(Child(Child(Dialog.ToSharedRef(), 0), 0), 0);
	for (const StandIn::FChildSlot& Slot : StandIn::ChildSlots(Grid))
	{
		if (Slot.Column == Column && Slot.Row == Row)
		{
			return Slot.Widget;
		}
	}
	throw std::out_of_range("no grid slot at column " + std::to_string(Column) + ", row " + std::to_string(Row));
}

bool FPakingDialogTest::AddEntry(const std::string& Plugin, bool bOriginal, const std::string& DLCs)
{
	StandIn::ClickButton(AddPluginButton());
	const int32 Entry = (int32)EntryCount() - 1;
	const bool bChosen = Plugin.empty() || StandIn::ChooseComboOption(Combo(Entry), StandIn::FromUtf8(Plugin));
	if (bOriginal)
	{
		StandIn::ClickCheckBox(OriginalCheckBox(Entry));
	}
	if (!DLCs.empty())
	{
		StandIn::CommitText(DLCTextBox(Entry), StandIn::FromUtf8(DLCs));
	}
	return bChosen;
}

std::optional<FHandedRun> FPakingDialogTest::DistributeAndSeeWhatThePipelineGot()
{
	// The pipeline's closing message box comes after its clean-up and before it empties its list.
	std::optional<FHandedRun> Run;
	StandIn::SetJournalListener([this, &Run](const StandIn::FJournalRecord& Record) {
		const StandIn::FMessageBoxRecord* Box = dynamic_cast<const StandIn::FMessageBoxRecord*>(&Record);
		if (Run.has_value() || Box == nullptr || !Paking.IsValid() || Utf8(Box->Message).rfind("Your pak is saved here: ", 0) != 0)
		{
			return;
		}
		Run.emplace();
		Run->bCalverly5Plugin = Paking->bCalverly5Plugin;
		for (const FPakingPluginEntry& Entry : Paking->Plugins)
		{
			Run->Plugins.push_back(FHandedPlugin{StandIn::ToUtf8(Entry.PluginName), Entry.bOriginal, ToUtf8Strings(Entry.RequiredDLCs)});
		}
	});
	StandIn::ClickButton(DistributeButton());
	StandIn::SetJournalListener(nullptr);
	return Run;
}

std::vector<std::string> FPakingDialogTest::OptionTexts(const TSharedRef<SWidget>& ComboBox)
{
	std::vector<std::string> Texts;
	for (const TSharedRef<SWidget>& Row : StandIn::OpenComboBox(ComboBox))
	{
		Texts.push_back(Shown(Row));
	}
	return Texts;
}

std::vector<EAppMsgType::Type> FPakingDialogTest::MessageBoxTypes()
{
	std::vector<EAppMsgType::Type> Types;
	for (const StandIn::FMessageBoxRecord* Box : StandIn::JournalRecords<StandIn::FMessageBoxRecord>())
	{
		Types.push_back(Box->Type);
	}
	return Types;
}

TSharedRef<SWidget> FPakingDialogTest::Child(const TSharedRef<SWidget>& Widget, int32 Index)
{
	return StandIn::ChildSlots(Widget).at((size_t)Index).Widget;
}
