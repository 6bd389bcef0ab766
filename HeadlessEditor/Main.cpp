// ugc-editor: a headless editor that boots the stand-in engine on a Windows world kept in a folder, runs
// the UGCEditor module there and operates its user interface as a person would.
#include "CommandLine.h"
#include "Commands.h"
#include "Modules/ModuleManager.h"
#include "StandIn/BackgroundTasks.h"
#include "StandIn/Records/LogRecord.h"
#include "StandIn/Records/MessageBoxRecord.h"
#include "StandIn/Records/NotificationRecord.h"
#include "StandIn/Records/SavePromptRecord.h"
#include "StandIn/Records/TabRecord.h"
#include "StandIn/Records/UatTaskRecord.h"
#include "StandIn/Records/WindowRecord.h"
#include "StandIn/World.h"
#include <filesystem>
#include <iostream>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
	bool IsDrivePath(const std::string& Path)
	{
		return Path.size() >= 3 && std::isalpha((unsigned char)Path[0]) && Path[1] == ':' && (Path[2] == '/' || Path[2] == '\\');
	}

	// The engine's launch folder always ends in a separator.
	std::string AsFolder(std::string Path)
	{
		if (Path.back() != '/' && Path.back() != '\\')
		{
			Path += '/';
		}
		return Path;
	}

	// A distribution keeps every walked path, every response line and every log line alive at once, in
	// 4-byte characters: hundreds of megabytes for a large tree, and most of the run's time went to
	// faulting in one small page after another. So the heap is set up once as a single region that is
	// never given back and is backed by huge pages where the system allows it (a fault then brings in
	// 2 MB), and large blocks come from it too instead of from fresh mappings each time a string doubles.
	void PrepareHeapForLargeSessions()
	{
		const size_t HugePage = (size_t)2 << 20;
		const size_t Reserved = (size_t)1 << 30;
		const int DefaultTopPad = 128 * 1024;
		const int DefaultMmapMax = 65536;
		mallopt(M_MMAP_MAX, 0);
		mallopt(M_TOP_PAD, (int)Reserved);
		// The heap grows by the whole reservation now, so that it is one region that can be advised once;
		// afterwards it grows as usual, so that a limit on the data size only ends the reservation early.
		const uintptr_t EndBefore = (uintptr_t)sbrk(0);
		void* const Probe = malloc(HugePage);
		const uintptr_t EndAfter = (uintptr_t)sbrk(0);
		mallopt(M_TOP_PAD, DefaultTopPad);
		if (Probe == nullptr || EndAfter < EndBefore + Reserved)
		{
			free(Probe);
			mallopt(M_MMAP_MAX, DefaultMmapMax);
			return;
		}
		mallopt(M_TRIM_THRESHOLD, (int)(Reserved * 2 - 1));
		free(Probe);
		const uintptr_t Start = (EndBefore + HugePage - 1) & ~(uintptr_t)(HugePage - 1);
		const uintptr_t End = EndAfter & ~(uintptr_t)(HugePage - 1);
		madvise((void*)Start, End - Start, MADV_HUGEPAGE);
	}

	StandIn::FWorld MakeWorld(const FEditorCommandLine& CommandLine)
	{
		for (const std::string* Path : {&CommandLine.LaunchDir, &CommandLine.ProjectFile})
		{
			if (!IsDrivePath(*Path))
			{
				throw FUsageError{"not a Windows drive path: " + *Path};
			}
		}
		if (!fs::is_directory(CommandLine.Root))
		{
			throw FUsageError{"--root is not a folder: " + CommandLine.Root};
		}
		StandIn::FWorld World;
		World.DriveRoot = fs::absolute(CommandLine.Root).lexically_normal().string();
		World.LaunchDir = StandIn::FromUtf8(AsFolder(CommandLine.LaunchDir));
		// The editor is taken to be started from its install folder, as the module assumes.
		World.BaseDir = StandIn::FromUtf8(AsFolder(CommandLine.LaunchDir)).Replace(TEXT("\\"), TEXT("/")) + TEXT("Engine/Binaries/Win64/");
		World.ProjectFilePath = StandIn::FromUtf8(CommandLine.ProjectFile);
		World.bPluginBrowserLoaded = !CommandLine.bNoPluginBrowser;
		for (const FEditorCommandLine::FDirtyPackage& Package : CommandLine.DirtyPackages)
		{
			World.DirtyPackages.push_back(StandIn::FDirtyPackage{StandIn::FromUtf8(Package.LongPackageName), Package.bIsMap});
		}
		World.SavePromptAnswer = CommandLine.bSaveAll ? StandIn::ESavePromptAnswer::SaveAll : StandIn::ESavePromptAnswer::DontSave;
		return World;
	}

	// The line a person at the editor would see for this record; empty for what the editor does not show.
	std::string ShownLine(const StandIn::FJournalRecord& Record)
	{
		if (dynamic_cast<const StandIn::FLogRecord*>(&Record) || dynamic_cast<const StandIn::FMessageBoxRecord*>(&Record) || dynamic_cast<const StandIn::FWindowRecord*>(&Record) || dynamic_cast<const StandIn::FNotificationRecord*>(&Record))
		{
			return Record.Describe();
		}
		if (const StandIn::FTabRecord* Tab = dynamic_cast<const StandIn::FTabRecord*>(&Record))
		{
			return Tab->Kind == StandIn::FTabRecord::EKind::Spawned ? Tab->Describe() : std::string();
		}
		if (const StandIn::FSavePromptRecord* Prompt = dynamic_cast<const StandIn::FSavePromptRecord*>(&Record))
		{
			if (!Prompt->bPromptShown)
			{
				return std::string();
			}
			std::string Line = "Save prompt: ";
			for (size_t Index = 0; Index < Prompt->PackageNames.size(); ++Index)
			{
				Line += (Index == 0 ? "" : ", ") + StandIn::ToUtf8(Prompt->PackageNames[Index]);
			}
			return Line;
		}
		if (const StandIn::FUatTaskRecord* Task = dynamic_cast<const StandIn::FUatTaskRecord*>(&Record))
		{
			const std::string Icon = Task->IconResourceName == NAME_None ? "none" : StandIn::ToUtf8(Task->IconResourceName.ToString());
			return "Task: " + StandIn::ToUtf8(Task->TaskName.ToString()) + " | " + StandIn::ToUtf8(Task->TaskShortName.ToString()) + " | " + StandIn::ToUtf8(Task->PlatformDisplayName.ToString()) + " | " + Icon + " | " + StandIn::ToUtf8(Task->CommandLine);
		}
		return std::string();
	}
}

int main(int argc, char** argv)
{
	PrepareHeapForLargeSessions();
	FEditorCommandLine CommandLine;
	StandIn::FWorld World;
	try
	{
		CommandLine = ParseCommandLine(std::vector<std::string>(argv + 1, argv + argc));
		if (CommandLine.bHelp)
		{
			std::cout << UsageText();
			return 0;
		}
		World = MakeWorld(CommandLine);
	}
	catch (const FUsageError& Error)
	{
		std::cerr << "ugc-editor: " << Error.Message << "\nTry 'ugc-editor --help'.\n";
		return 2;
	}

	StandIn::ResetWorld(World);
	StandIn::SetJournalListener([](const StandIn::FJournalRecord& Record) {
		const std::string Line = ShownLine(Record);
		if (!Line.empty())
		{
			// One flush at exit, not one a line: a run over many files logs tens of thousands of lines.
			std::cout << Line << '\n';
		}
	});
	StandIn::DiscoverPlugins();

	// As the engine starts its modules: the project's (UGCEditor, as the game project lists it) before the
	// plugins'; each by name, through its exported entry point, then its start-up. A project file that does
	// not list the module still gets it, since the session is about it.
	StandIn::LoadStartupModules();
	FModuleManager::Get().LoadModuleChecked(TEXT("UGCEditor"));
	const int ExitCode = RunCommand(CommandLine);
	// A task started in the session ends in it.
	StandIn::WaitForBackgroundTasks();
	// As at the editor's exit: shut down, then destroyed.
	FModuleManager::Get().UnloadModule(TEXT("UGCEditor"), true);
	return ExitCode;
}
