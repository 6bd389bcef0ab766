#pragma once

// The journal: everything the engine only shows (log lines, message boxes, windows, child processes, ...)
// in the order it happened. Each kind of record has a header of its own under Records/; a new recorded
// service adds one such header and appends its records where the service acts.
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace StandIn
{
	class FJournalRecord
	{
	public:
		virtual ~FJournalRecord() = default;
		// One line that says everything that happened, for a reader of the journal.
		virtual std::string Describe() const = 0;
		// The line a person at the editor sees for it, its values put in with ShownText.h; empty for what
		// the editor does not show (child processes, Win32 calls). By default the description, shown.
		virtual std::string ShownLine() const;
	};

	const std::vector<std::shared_ptr<const FJournalRecord>>& Journal();

	// Every record of one kind, in journal order.
	template <typename RecordType>
	std::vector<const RecordType*> JournalRecords()
	{
		std::vector<const RecordType*> Records;
		for (const std::shared_ptr<const FJournalRecord>& Record : Journal())
		{
			if (const RecordType* Typed = dynamic_cast<const RecordType*>(Record.get()))
			{
				Records.push_back(Typed);
			}
		}
		return Records;
	}

	// Each record's Describe(), in journal order, from the given position on.
	std::vector<std::string> JournalLines(size_t FirstRecord = 0);

	// Called as each record is added, after it is in the journal.
	void SetJournalListener(std::function<void(const FJournalRecord&)> Listener);

	// For the stand-in's services: adds a record and tells the listener.
	void AppendToJournal(std::shared_ptr<const FJournalRecord> Record);

	// Called when the editor is about to wait for something outside it (a child process, a person at a
	// prompt, a running task), so that whoever shows the journal can bring its reader up to date first.
	void SetWaitListener(std::function<void()> Listener);

	// For the stand-in's services: says that the editor is about to wait.
	void AnnounceWait();
}
