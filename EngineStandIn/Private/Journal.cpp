#include "StandIn/Journal.h"
#include "StandIn/Records/BuildToolRecord.h"
#include "StandIn/Records/FileAttributesRecord.h"
#include "StandIn/Records/LogRecord.h"
#include "StandIn/Records/MessageBoxRecord.h"
#include "StandIn/Records/PathRefusalRecord.h"
#include "StandIn/Records/NotificationRecord.h"
#include "StandIn/Records/TabRecord.h"
#include "StandIn/Records/WindowRecord.h"
#include "StandIn/World.h"
#include <cstdio>
#include <cwchar>

namespace
{
	struct FJournalState
	{
		std::vector<std::shared_ptr<const StandIn::FJournalRecord>> Records;
		std::function<void(const StandIn::FJournalRecord&)> Listener;
	};

	// Never destroyed: a long session leaves tens of thousands of records, and freeing them one by one as
	// the program ends only delays its exit.
	FJournalState& State()
	{
		static FJournalState* const Instance = new FJournalState;
		return *Instance;
	}

	// As StandIn::ToUtf8, appended in place. Text of 7-bit characters without a NUL, a log line's usual
	// content, is checked and narrowed in two loops without early exits, which the compiler vectorises.
	void AppendUtf8(std::string& Line, const FString& Text)
	{
		const TCHAR* const Chars = *Text;
		const size_t Count = (size_t)Text.Len();
		uint32 AllBits = 0;
		for (size_t Index = 0; Index < Count; ++Index)
		{
			AllBits |= (uint32)Chars[Index];
		}
		if (AllBits >= 0x80 || std::wcslen(Chars) != Count)
		{
			Line += StandIn::ToUtf8(Text);
			return;
		}
		const size_t Start = Line.size();
		Line.resize(Start + Count);
		char* const Out = &Line[Start];
		for (size_t Index = 0; Index < Count; ++Index)
		{
			Out[Index] = (char)Chars[Index];
		}
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
		FJournalState& Journal = State();
		Journal.Records.push_back(std::move(Record));
		if (Journal.Listener)
		{
			Journal.Listener(*Journal.Records.back());
		}
	}

	std::string FLogRecord::Describe() const
	{
		static const char* const Names[] = {"NoLogging", "Fatal", "Error", "Warning", "Display", "Log", "Verbose", "VeryVerbose"};
		std::string Line;
		Line.reserve((size_t)Category.Len() + (size_t)Message.Len() + 16);
		AppendUtf8(Line, Category);
		Line += ": ";
		if (Verbosity != ELogVerbosity::Log)
		{
			Line += Names[Verbosity];
			Line += ": ";
		}
		AppendUtf8(Line, Message);
		return Line;
	}

	std::string FMessageBoxRecord::Describe() const
	{
		return "Message: " + ToUtf8(Message.ToString());
	}

	std::string FWindowRecord::Describe() const
	{
		return "Window: " + ToUtf8(Title.ToString()) + " " + std::to_string((int)ClientSize.X) + "x" + std::to_string((int)ClientSize.Y);
	}

	std::string FPathRefusalRecord::Describe() const
	{
		return "Refused outside the drive root: " + ToUtf8(Path);
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
