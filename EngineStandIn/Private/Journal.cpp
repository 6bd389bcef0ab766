#include "StandIn/Journal.h"
#include "StandIn/Records/BuildToolRecord.h"
#include "StandIn/Records/FileAttributesRecord.h"
#include "StandIn/Records/LogRecord.h"
#include "StandIn/Records/MessageBoxRecord.h"
#include "StandIn/Records/NotificationRecord.h"
#include "StandIn/Records/TabRecord.h"
#include "StandIn/Records/WindowRecord.h"
#include "StandIn/World.h"
#include <cstdio>

namespace
{
	struct FJournalState
	{
		std::vector<std::shared_ptr<const StandIn::FJournalRecord>> Records;
		std::function<void(const StandIn::FJournalRecord&)> Listener;
	};

	FJournalState& State()
	{
		static FJournalState Instance;
		return Instance;
	}
}

namespace StandInJournal
{
	void Clear()
	{
		State().Records.clear();
	}
}

namespace StandIn
{
	const std::vector<std::shared_ptr<const FJournalRecord>>& Journal()
	{
		return State().Records;
	}

	std::vector<std::string> JournalLines(size_t FirstRecord)
	{
		std::vector<std::string> Lines;
		for (size_t Index = FirstRecord; Index < Journal().size(); ++Index)
		{
			Lines.push_back(Journal()[Index]->Describe());
		}
		return Lines;
	}

	void SetJournalListener(std::function<void(const FJournalRecord&)> Listener)
	{
		State().Listener = std::move(Listener);
	}

	void AppendToJournal(std::shared_ptr<const FJournalRecord> Record)
	{
		State().Records.push_back(Record);
		if (State().Listener)
		{
			State().Listener(*Record);
		}
	}

	std::string FLogRecord::Describe() const
	{
		static const char* const Names[] = {"NoLogging", "Fatal", "Error", "Warning", "Display", "Log", "Verbose", "VeryVerbose"};
		std::string Line = ToUtf8(Category) + ": ";
		if (Verbosity != ELogVerbosity::Log)
		{
			Line += std::string(Names[Verbosity]) + ": ";
		}
		return Line + ToUtf8(Message);
	}

	std::string FMessageBoxRecord::Describe() const
	{
		return "Message: " + ToUtf8(Message.ToString());
	}

	std::string FWindowRecord::Describe() const
	{
		return "Window: " + ToUtf8(Title.ToString()) + " " + std::to_string((int)ClientSize.X) + "x" + std::to_string((int)ClientSize.Y);
	}

	std::string FFileAttributesRecord::Describe() const
	{
		char Hex[16];
		std::snprintf(Hex, sizeof(Hex), "0x%x", Attributes);
		return "SetFileAttributesW: " + ToUtf8(Path) + " " + Hex;
	}

	std::string FTabRecord::Describe() const
	{
		const std::string Tab = ToUtf8(DisplayName.ToString()) + " (" + ToUtf8(TabId) + ")";
		switch (Kind)
		{
		case EKind::Spawned:
			return "Tab: " + Tab + " " + std::to_string((int)WindowSize.X) + "x" + std::to_string((int)WindowSize.Y);
		case EKind::BroughtToFront:
			return "Tab to front: " + Tab;
		default:
			return "Tab closed: " + Tab;
		}
	}

	std::string FNotificationRecord::Describe() const
	{
		return "Notification: " + ToUtf8(Text.ToString());
	}

	std::string FBuildToolRecord::Describe() const
	{
		return "Build tool: " + ToUtf8(Description.ToString()) + " | " + ToUtf8(Arguments);
	}
}
