#include "Commands.h"
#include "AutomationCommand.h"
#include "PakingDialogDriver.h"
#include "SessionOutput.h"
#include "StandIn/ShownText.h"
#include "StandIn/Records/TabRecord.h"
#include "StandIn/Records/WindowRecord.h"
#include "StandIn/UserInput.h"
#include "StandIn/WidgetTree.h"
#include "StandIn/World.h"
#include "Styling/SlateBrush.h"
#include "Styling/StyleDefaults.h"
#include <cmath>
#include <functional>
#include <iostream>

namespace
{
	// Depth first, the first widget that matches.
	TSharedPtr<SWidget> FindWidget(const TSharedRef<SWidget>& Root, const std::function<bool(const TSharedRef<SWidget>&)>& Matches)
	{
		if (Matches(Root))
		{
			return Root;
		}
		for (const StandIn::FChildSlot& Child : StandIn::ChildSlots(Root))
		{
			if (TSharedPtr<SWidget> Found = FindWidget(Child.Widget, Matches))
			{
				return Found;
			}
		}
		return nullptr;
	}

	TSharedRef<SWidget> FindByType(const TSharedRef<SWidget>& Root, const std::string& TypePrefix)
	{
		TSharedPtr<SWidget> Found = FindWidget(Root, [&TypePrefix](const TSharedRef<SWidget>& Widget) {
			return StandIn::WidgetType(Widget).rfind(TypePrefix, 0) == 0;
		});
		check(Found.IsValid());
		return Found.ToSharedRef();
	}

	// The command needs something the editor does not show; nothing more is done.
	struct FCommandError
	{
		std::string Message;
	};

	// Adds one entry as a person would and fills it in; throws when the dialog will not take the plugin.
	void AddEntry(FPakingDialogDriver& Dialog, const FEditorCommandLine::FPluginChoice& Plugin)
	{
		const size_t EntriesBefore = Dialog.EntryCount();
		if (!Dialog.AddEntry(Plugin.Name, Plugin.bOriginal, Plugin.RequiredDLCs ? &*Plugin.RequiredDLCs : nullptr))
		{
			if (Dialog.EntryCount() == EntriesBefore)
			{
				throw FCommandError{"\"Add Plugin\" added no entry for --plugin " + Quoted(Plugin.Name) + "; nothing was distributed."};
			}
			const std::vector<std::string> Offered = FPakingDialogDriver::OptionTexts(Dialog.Combo((int32)EntriesBefore));
			std::string OfferedList;
			for (const std::string& Name : Offered)
			{
				OfferedList += (OfferedList.empty() ? "" : ", ") + Name;
			}
			throw FCommandError{"the dialog offers no cooked plugin named " + Quoted(Plugin.Name) + " (it offers: " + (OfferedList.empty() ? "none" : OfferedList) + "); nothing was distributed."};
		}
	}
}

namespace
{
	std::string Size(float Value)
	{
		return Value == std::floor(Value) ? std::to_string((long long)Value) : std::to_string(Value);
	}

	std::string Brush(const StandIn::FMenuEntry& Entry)
	{
		if (Entry.IconStyleSetName == NAME_None && Entry.IconStyleName == NAME_None)
		{
			return "none";
		}
		if (Entry.IconBrush == nullptr || Entry.IconBrush == FStyleDefaults::GetNoBrush())
		{
			return "no brush";
		}
		const FVector2D ImageSize = Entry.IconBrush->GetImageSize();
		return StandIn::ToUtf8(Entry.IconBrush->GetResourceName().ToString()) + " " + Size(ImageSize.X) + "x" + Size(ImageSize.Y);
	}

	// One line an entry, as a person reads the menu or tool bar at this place.
	void ListMenu(FSessionOutput& Output, const std::string& Place, const TSharedRef<SWidget>& Menu)
	{
		static const char* const Kinds[] = {"heading", "separator", "entry", "sub-menu", "button", "combo"};
		bool bAnyEntry = false;
		for (const StandIn::FMenuEntry& Entry : StandIn::MenuEntries(Menu))
		{
			const std::string Label = StandIn::ShownField(StandIn::ToUtf8(Entry.Label.ToString()));
			if (Entry.Kind == StandIn::FMenuEntry::EKind::Heading)
			{
				Output.WriteLine("Menu: " + Place + " | heading | " + Label);
				continue;
			}
			if (Entry.Kind == StandIn::FMenuEntry::EKind::Separator)
			{
				continue;
			}
			bAnyEntry = true;
			const std::string Icon = Entry.IconStyleSetName == NAME_None && Entry.IconStyleName == NAME_None ? "none" : StandIn::ToUtf8(Entry.IconStyleSetName.ToString()) + "/" + StandIn::ToUtf8(Entry.IconStyleName.ToString());
			Output.WriteLine("Menu: " + Place + " | " + Kinds[(int)Entry.Kind] + " | " + Label + " | " + StandIn::ShownField(StandIn::ToUtf8(Entry.ToolTip.ToString())) + " | " + StandIn::ShownField(Icon) + " | " + StandIn::ShownField(Brush(Entry)));
		}
		if (!bAnyEntry)
		{
			Output.WriteLine("Menu: " + Place + " | empty");
		}
	}

	std::string EntryLabels(const TSharedRef<SWidget>& Menu)
	{
		std::string Labels;
		for (const StandIn::FMenuEntry& Entry : StandIn::MenuEntries(Menu))
		{
			if (Entry.Kind == StandIn::FMenuEntry::EKind::Entry)
			{
				Labels += (Labels.empty() ? "" : ", ") + StandIn::ToUtf8(Entry.Label.ToString());
			}
		}
		return Labels.empty() ? "none" : Labels;
	}

	TSharedRef<SWidget> OpenCookModSubMenu()
	{
		const TSharedPtr<SWidget> SubMenu = StandIn::OpenSubMenu(StandIn::OpenLevelEditorMenu(TEXT("FileProject")), TEXT("Cook Mod"));
		check(SubMenu.IsValid());
		return SubMenu.ToSharedRef();
	}

	TSharedRef<SWidget> OpenCookModDropDown()
	{
		const TSharedPtr<SWidget> DropDown = StandIn::OpenComboDropDown(StandIn::OpenLevelEditorToolBar(TEXT("Compile")), TEXT("Cook Mod"));
		check(DropDown.IsValid());
		return DropDown.ToSharedRef();
	}

	void RunMenus(FSessionOutput& Output)
	{
		ListMenu(Output, "FileProject", StandIn::OpenLevelEditorMenu(TEXT("FileProject")));
		ListMenu(Output, "Compile", StandIn::OpenLevelEditorToolBar(TEXT("Compile")));
		ListMenu(Output, "Cook Mod sub-menu", OpenCookModSubMenu());
		ListMenu(Output, "Cook Mod drop-down", OpenCookModDropDown());
		ListMenu(Output, "Cook Mod sub-menu", OpenCookModSubMenu());
	}

	void RunCook(const FEditorCommandLine& CommandLine, FSessionOutput& Output)
	{
		const TSharedRef<SWidget> DropDown = OpenCookModDropDown();
		ListMenu(Output, "Cook Mod drop-down", DropDown);
		if (!StandIn::ClickMenuEntry(DropDown, StandIn::FromUtf8(*CommandLine.Name)))
		{
			throw FCommandError{"the \"Cook Mod\" drop-down offers no plugin named " + Quoted(*CommandLine.Name) + " (it offers: " + EntryLabels(DropDown) + "); nothing was cooked."};
		}
	}

	void RunCreate(const FEditorCommandLine& CommandLine)
	{
		const size_t FirstTab = StandIn::JournalRecords<StandIn::FTabRecord>().size();
		StandIn::ClickMenuEntry(StandIn::OpenLevelEditorMenu(TEXT("FileProject")), TEXT("Create Mod"));
		const std::vector<const StandIn::FTabRecord*> Tabs = StandIn::JournalRecords<StandIn::FTabRecord>();
		if (Tabs.size() == FirstTab)
		{
			return;
		}
		const TSharedRef<SWidget> Tab = Tabs.back()->Tab;
		const TSharedRef<SWidget> TemplateList = FindByType(Tab, "SPluginTemplateList");
		const TSharedRef<SWidget> NameBox = FindByType(Tab, "SEditableTextBox");
		const TSharedRef<SWidget> CreateButton = FindByType(Tab, "SButton");
		for (const std::string& Template : CommandLine.Templates)
		{
			if (!StandIn::SelectListRow(TemplateList, StandIn::FromUtf8(Template)))
			{
				std::string Listed;
				for (const FText& Row : StandIn::Paint(TemplateList).ListRows)
				{
					Listed += (Listed.empty() ? "" : ", ") + StandIn::ToUtf8(Row.ToString());
				}
				throw FCommandError{"the wizard lists no template named " + Quoted(Template) + " (it lists: " + Listed + "); no mod was created."};
			}
		}
		StandIn::CommitText(NameBox, StandIn::FromUtf8(*CommandLine.Name));
		if (!StandIn::Paint(CreateButton).bIsEnabled)
		{
			const std::string Reason = StandIn::ToUtf8(StandIn::Paint(NameBox).ErrorText.ToString());
			// The wizard's own reason is a sentence of its own.
			throw FCommandError{"the wizard refuses the name " + Quoted(*CommandLine.Name) + " (" + (Reason.empty() ? "its create button stays disabled" : Reason) + "); no mod was created."};
		}
		StandIn::ClickButton(CreateButton);
	}

	void RunDistribute(const FEditorCommandLine& CommandLine)
	{
		const size_t FirstWindow = StandIn::JournalRecords<StandIn::FWindowRecord>().size();
		StandIn::ClickMenuEntry(StandIn::OpenLevelEditorMenu(TEXT("FileProject")), TEXT("Distribute"));
		const std::vector<const StandIn::FWindowRecord*> Windows = StandIn::JournalRecords<StandIn::FWindowRecord>();
		check(Windows.size() > FirstWindow);
		FPakingDialogDriver Dialog(Windows.back()->Content);
		for (const FEditorCommandLine::FPluginChoice& Plugin : CommandLine.Plugins)
		{
			AddEntry(Dialog, Plugin);
		}
		if (CommandLine.bCalverly5)
		{
			StandIn::ClickCheckBox(Dialog.EditionCheckBox());
		}
		StandIn::ClickButton(Dialog.DistributeButton());
	}
}

int RunCommand(const FEditorCommandLine& CommandLine, FSessionOutput& Output)
{
	try
	{
		if (CommandLine.Command == "automation")
		{
			return RunAutomation(CommandLine);
		}
		if (CommandLine.Command == "menus")
		{
			RunMenus(Output);
		}
		else if (CommandLine.Command == "cook")
		{
			RunCook(CommandLine, Output);
		}
		else if (CommandLine.Command == "create")
		{
			RunCreate(CommandLine);
		}
		else
		{
			RunDistribute(CommandLine);
		}
	}
	catch (const FCommandError& Error)
	{
		Output.Flush();
		// Plugin and template names come from folders on disk: none may break the message's line.
		std::cerr << "ugc-editor: " << StandIn::ShownValue(Error.Message) << std::endl;
		return 2;
	}
	return 0;
}
