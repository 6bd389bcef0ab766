// The C runtime's system() as the Windows world has it: the module calls the runtime's own function, so
// the stand-in library defines it, and the linker takes this definition before the host's C library.
// Every program linked with the stand-in therefore runs its system() commands through cmd.exe.
#include "Common/WindowsCommandLine.h"
#include "StandIn/Records/ProcessRecords.h"
#include "StandIn/World.h"
#include "StandInWorld.h"
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string>
#include <unistd.h>

namespace
{
	// _spawnve takes the program as a path, a relative one from the current directory.
	std::string InterpreterAtPath(const std::string& Name)
	{
		return StandInWorld::ToHost(*StandIn::FromUtf8(Name));
	}

	// _spawnvpe tries the name from the current directory first, then each folder of PATH.
	std::string InterpreterOnPath(const std::string& Name)
	{
		const std::string Here = InterpreterAtPath(Name);
		return WindowsCommandLine::IsExecutableFile(Here) ? Here : WindowsCommandLine::FindOnPath(Name);
	}

	// As the runtime's _spawnve(_P_WAIT, ...): the arguments joined by single blanks, none of them quoted,
	// with the caller's standard handles; the child's exit code, or -1 with errno set.
	int SpawnAndWait(const std::string& Interpreter, const std::string& HostProgram, const char* Command)
	{
		const std::string Line = Interpreter + " /c " + Command;
		int StartError = 0;
		const pid_t Child = WindowsCommandLine::Start(HostProgram, Line, WindowsCommandLine::FStandardHandles(), StandInWorld::CurrentDirectoryOnHost(), StartError);
		if (Child < 0)
		{
			errno = StartError;
			return -1;
		}
		return WindowsCommandLine::WaitForExitCode(Child);
	}
}

namespace StandIn
{
	std::string FSystemCallRecord::Describe() const
	{
		return "system: " + Command;
	}
}

extern "C" int system(const char* Command)
{
	const char* Comspec = std::getenv("COMSPEC");
	// Without a command the runtime only says whether COMSPEC names an interpreter that is there.
	if (!Command)
	{
		return Comspec && access(InterpreterAtPath(Comspec).c_str(), F_OK) == 0 ? 1 : 0;
	}
	StandIn::AppendToJournal(std::make_shared<StandIn::FSystemCallRecord>(Command));
	StandIn::AnnounceWait();
	if (Comspec)
	{
		const int Result = SpawnAndWait(Comspec, InterpreterAtPath(Comspec), Command);
		if (Result != -1 || (errno != ENOENT && errno != EACCES))
		{
			return Result;
		}
	}
	// The runtime's fallback, and the usual case here: no COMSPEC, so "cmd.exe" is searched from the current directory and on PATH.
	return SpawnAndWait("cmd.exe", InterpreterOnPath("cmd.exe"), Command);
}
