// ugc-editor: a headless editor that boots the stand-in engine on a Windows world kept in a folder, runs
// the UGCEditor module there and operates its user interface as a person would.
#include "CommandLine.h"
#include "Commands.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "ProjectChecks.h"
#include "SessionOutput.h"
#include "StandIn/BackgroundTasks.h"
#include "StandIn/Journal.h"
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

	// Windows keeps no doubled separator in a current directory; the engine collapses them as below.
	FString LaunchFolder(const std::string& Path)
	{
		FString Folder = StandIn::FromUtf8(AsFolder(Path));
		if (Folder.Contains(TEXT("//"), ESearchCase::CaseSensitive) || Folder.Contains(TEXT("\\\\"), ESearchCase::CaseSensitive))
		{
			FPaths::NormalizeFilename(Folder);
			FPaths::RemoveDuplicateSlashes(Folder);
		}
		return Folder;
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
		World.LaunchDir = LaunchFolder(CommandLine.LaunchDir);
		// The editor is taken to be started from its install folder, as the module assumes.
		World.BaseDir = World.LaunchDir.Replace(TEXT("\\"), TEXT("/")) + TEXT("Engine/Binaries/Win64/");
		World.ProjectFilePath = StandIn::FromUtf8(CommandLine.ProjectFile);
		World.bPluginBrowserLoaded = !CommandLine.bNoPluginBrowser;
		for (const FEditorCommandLine::FDirtyPackage& Package : CommandLine.DirtyPackages)
		{
			World.DirtyPackages.push_back(StandIn::FDirtyPackage{StandIn::FromUtf8(Package.LongPackageName), Package.bIsMap});
		}
		World.SavePromptAnswer = CommandLine.bSaveAll ? StandIn::ESavePromptAnswer::SaveAll : StandIn::ESavePromptAnswer::DontSave;
		return World;
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
		std::cerr << "ugc-editor: " << Error.Message << " (see ugc-editor --help)\n";
		return 2;
	}

	const fs::path DriveC = fs::path(World.DriveRoot) / "C";
	const bool bHadDriveC = fs::exists(DriveC);
	StandIn::ResetWorld(World);
	try
	{
		RefuseUnusableProject(CommandLine);
	}
	catch (const FUsageError& Error)
	{
		// A refused session leaves the folder as it found it, without the drive the world always has.
		if (!bHadDriveC)
		{
			fs::remove(DriveC);
		}
		std::cerr << "ugc-editor: " << Error.Message << "\n";
		return 2;
	}

	FSessionOutput Output;
	StandIn::SetJournalListener([&Output](const StandIn::FJournalRecord& Record) {
		const std::string Line = Record.ShownLine();
		if (!Line.empty())
		{
			Output.WriteLine(Line);
		}
	});
	StandIn::SetWaitListener([&Output] {
		Output.Flush();
	});
	StandIn::DiscoverPlugins();

	// As the engine starts its modules: the project's (UGCEditor, as the game project lists it) before the
	// plugins'; each by name, through its exported entry point, then its start-up. A project file that does
	// not list the module still gets it, since the session is about it.
	StandIn::LoadStartupModules();
	FModuleManager::Get().LoadModuleChecked(TEXT("UGCEditor"));
	const int ExitCode = RunCommand(CommandLine, Output);
	// A task started in the session ends in it.
	StandIn::WaitForBackgroundTasks();
	// As at the editor's exit: shut down, then destroyed.
	FModuleManager::Get().UnloadModule(TEXT("UGCEditor"), true);
	// What happens after the session is not shown: the listeners go before the output they write to.
	StandIn::SetJournalListener(nullptr);
	StandIn::SetWaitListener(nullptr);
	return ExitCode;
}
