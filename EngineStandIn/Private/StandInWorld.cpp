#include "StandInWorld.h"
#include "StandInControl.h"
#include "Common/WindowsDrivePath.h"
#include "HAL/PlatformFileManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Paths.h"
#include "Windows/WindowsHWrapper.h"
#include <cstdlib>
#include <sys/stat.h>

#ifndef STANDIN_PROGRAMS_DIR
#error "STANDIN_PROGRAMS_DIR names the folder that holds the stand-in's cmd.exe"
#endif

namespace
{
	struct FRecords
	{
		StandIn::FWorld World;
		std::vector<StandIn::FLogRecord> Logs;
		std::vector<StandIn::FMessageBoxRecord> MessageBoxes;
		std::vector<StandIn::FFileAttributesRecord> FileAttributes;
		std::function<void(const StandIn::FLogRecord&)> LogListener;
		std::function<void(const StandIn::FMessageBoxRecord&)> MessageBoxListener;
		std::string OriginalPath;
		FString BaseDirStorage;
	};

	FRecords& Records()
	{
		static FRecords Instance;
		return Instance;
	}
}

namespace StandIn
{
	void ResetWorld(const FWorld& World)
	{
		FRecords& State = Records();
		if (State.OriginalPath.empty())
		{
			const char* Path = std::getenv("PATH");
			State.OriginalPath = Path ? Path : "/usr/bin:/bin";
		}
		State.World = World;
		State.BaseDirStorage = World.BaseDir;
		State.Logs.clear();
		State.MessageBoxes.clear();
		State.FileAttributes.clear();
		// Drive C: is always there; other drives exist where the sandbox has their folder.
		mkdir((World.DriveRoot + "/C").c_str(), 0777);
		setenv(WindowsDrivePath::DriveRootVariable(), World.DriveRoot.c_str(), 1);
		const std::string Path = std::string(STANDIN_PROGRAMS_DIR) + ":" + State.OriginalPath;
		setenv("PATH", Path.c_str(), 1);
		FPlatformFileManager::Get().SetPlatformFile(IPlatformFile::GetPlatformPhysical());
		StandInSlate::ResetWindows();
	}

	const FWorld& GetWorld()
	{
		return Records().World;
	}

	std::string HostPath(const FString& WindowsPath)
	{
		return StandInWorld::ToHost(*WindowsPath);
	}

	std::string FLogRecord::OutputLine() const
	{
		static const char* const Names[] = {"NoLogging", "Fatal", "Error", "Warning", "Display", "Log", "Verbose", "VeryVerbose"};
		std::string Line = ToUtf8(Category) + ": ";
		if (Verbosity != ELogVerbosity::Log)
		{
			Line += std::string(Names[Verbosity]) + ": ";
		}
		return Line + ToUtf8(Message);
	}

	const std::vector<FLogRecord>& LogRecords()
	{
		return Records().Logs;
	}
	const std::vector<FMessageBoxRecord>& MessageBoxes()
	{
		return Records().MessageBoxes;
	}
	const std::vector<FFileAttributesRecord>& FileAttributeCalls()
	{
		return Records().FileAttributes;
	}
	void SetLogListener(std::function<void(const FLogRecord&)> Listener)
	{
		Records().LogListener = std::move(Listener);
	}
	void SetMessageBoxListener(std::function<void(const FMessageBoxRecord&)> Listener)
	{
		Records().MessageBoxListener = std::move(Listener);
	}

	std::string ToUtf8(const FString& Text)
	{
		return std::string(FTCHARToUTF8(*Text).Get());
	}

	FString FromUtf8(const std::string& Text)
	{
		return FString(FUTF8ToTCHAR(Text.c_str(), (int32)Text.size()).Get());
	}
}

namespace StandInWorld
{
	std::string ToHost(const TCHAR* WindowsPath)
	{
		FString Path(WindowsPath);
		if (FPaths::IsRelative(Path))
		{
			Path = FPaths::ConvertRelativePathToFull(Records().World.BaseDir, Path);
		}
		return WindowsDrivePath::ToHost(Records().World.DriveRoot, StandIn::ToUtf8(Path));
	}

	std::string CurrentDirectoryOnHost()
	{
		const std::string Host = ToHost(*Records().World.BaseDir);
		struct stat Info;
		return stat(Host.c_str(), &Info) == 0 && S_ISDIR(Info.st_mode) ? Host : std::string();
	}
}

namespace StandInLogging
{
	void Emit(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const FString& Message)
	{
		FRecords& State = Records();
		State.Logs.push_back(StandIn::FLogRecord{Category.GetCategoryName().ToString(), Verbosity, Message});
		if (State.LogListener)
		{
			State.LogListener(State.Logs.back());
		}
		if (Verbosity == ELogVerbosity::Fatal)
		{
			std::abort();
		}
	}
}

DEFINE_LOG_CATEGORY(LogTemp);

FString FPaths::LaunchDir()
{
	return Records().World.LaunchDir;
}

FString FPaths::GetProjectFilePath()
{
	return Records().World.ProjectFilePath;
}

const TCHAR* FPlatformProcess::BaseDir()
{
	return *Records().BaseDirStorage;
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, const FText& Message, const FText* OptTitle)
{
	return Open(MessageType, EAppReturnType::Ok, Message, OptTitle);
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText* OptTitle)
{
	FRecords& State = Records();
	State.MessageBoxes.push_back(StandIn::FMessageBoxRecord{MessageType, Message});
	if (State.MessageBoxListener)
	{
		State.MessageBoxListener(State.MessageBoxes.back());
	}
	return MessageType == EAppMsgType::Ok ? EAppReturnType::Ok : DefaultValue;
}

BOOL SetFileAttributesW(LPCWSTR lpFileName, DWORD dwFileAttributes)
{
	Records().FileAttributes.push_back(StandIn::FFileAttributesRecord{FString(lpFileName), (uint32)dwFileAttributes});
	struct stat Info;
	return stat(StandInWorld::ToHost(lpFileName).c_str(), &Info) == 0 ? 1 : 0;
}
