#include "PakingDialogTest.h"
#include "SPakingDialog.h"

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

std::vector<EAppMsgType::Type> FPakingDialogTest::MessageBoxTypes()
{
	std::vector<EAppMsgType::Type> Types;
	for (const StandIn::FMessageBoxRecord* Box : StandIn::JournalRecords<StandIn::FMessageBoxRecord>())
	{
		Types.push_back(Box->Type);
	}
	return Types;
}
