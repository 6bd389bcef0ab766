#include "IUATHelperModule.h"
#include "StandIn/Records/UatTaskRecord.h"
#include "StandIn/ShownText.h"
#include "StandIn/World.h"
#include "Styling/SlateBrush.h"

namespace
{
	// Records the task and returns, as the editor does while the tool runs in the background; the stand-in
	// runs no automation tool, so the result callback is never called.
	class FStandInUATHelperModule final : public IUATHelperModule
	{
	public:
		virtual void CreateUatTask(const FString& CommandLine, const FText& PlatformDisplayName, const FText& TaskName, const FText& TaskShortName, const FSlateBrush* TaskIcon, UatTaskResultCallack ResultCallback, const FString& ResultLocation) override
		{
			const FName IconResourceName = TaskIcon != nullptr ? TaskIcon->GetResourceName() : FName();
			StandIn::AppendToJournal(std::make_shared<StandIn::FUatTaskRecord>(CommandLine, PlatformDisplayName, TaskName, TaskShortName, IconResourceName, ResultLocation));
		}
	};
}

namespace StandInModules
{
	IModuleInterface* InitializeUATHelperModule()
	{
		return new FStandInUATHelperModule();
	}
}

namespace StandIn
{
	std::string FUatTaskRecord::Describe() const
	{
		return "Automation task: " + ToUtf8(TaskName.ToString()) + " (" + ToUtf8(PlatformDisplayName.ToString()) + "): " + ToUtf8(CommandLine);
	}

	std::string FUatTaskRecord::ShownLine() const
	{
		const std::string Icon = IconResourceName == NAME_None ? "none" : ToUtf8(IconResourceName.ToString());
		return "Task: " + ShownField(ToUtf8(TaskName.ToString())) + " | " + ShownField(ToUtf8(TaskShortName.ToString())) + " | " + ShownField(ToUtf8(PlatformDisplayName.ToString())) + " | " + ShownField(Icon) + " | " + ShownField(ToUtf8(CommandLine));
	}
}
