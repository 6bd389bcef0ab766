#include "StandInBackgroundTasks.h"
#include "StandInModules.h"
#include "StandInWorld.h"
#include "StandInPackages.h"
#include "StandIn/Records/FileAttributesRecord.h"
#include "StandIn/Records/LogRecord.h"
#include "StandIn/Records/MessageBoxRecord.h"
#include "StandIn/Records/PathRefusalRecord.h"
#include "StandIn/World.h"
#include "Common/WindowsDrivePath.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "HAL/PlatformFilemanager.h"
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
		std::string OriginalPath;
		FString BaseDirStorage;
	};

	FRecords& Records()
	{
		static FRecords Instance;
		return Instance;
	}

	// "/x" but not the network path "//server/x", which stays outside the drives and is refused.
	bool IsRootedWithoutDrive(const FString& Path)
	{
		const auto IsSeparator = [](TCHAR Char) {
			return Char == L'/' || Char == L'\\';
		};
		return Path.Len() >= 1 && IsSeparator(Path[0]) && !(Path.Len() >= 2 && IsSeparator(Path[1]));
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
		StandInBackgroundTasks::Forget();
		StandInJournal::Clear();
		StandInPlugins::Forget();
		StandInPlugins::ForgetMountPoints();
		StandInTabs::Forget();
		// Drive C: is always there; other drives exist where the sandbox has their folder.
		mkdir((World.DriveRoot + "/C").c_str(), 0777);
		setenv(WindowsDrivePath::DriveRootVariable(), World.DriveRoot.c_str(), 1);
		const std::string Path = std::string(STANDIN_PROGRAMS_DIR) + ":" + State.OriginalPath;
		setenv("PATH", Path.c_str(), 1);
		FPlatformFileManager::Get().SetPlatformFile(IPlatformFile::GetPlatformPhysical());
		StandInPackages::Reset(World.DirtyPackages);
		StandInModules::StartEditorModules();
	}

	const FWorld& GetWorld()
	{
		return Records().World;
	}

	std::string HostPath(const FString& WindowsPath)
	{
		return StandInWorld::ToHost(*WindowsPath);
	}

	// Paths and log lines are almost always 7-bit: those are copied unit for unit at their final size, and
	// only text with other characters goes through the converters. Both stop at a NUL, as the converters'
	// C strings do.
	std::string ToUtf8(const FString& Text)
	{
		const TCHAR* const Chars = *Text;
		std::string Converted((size_t)Text.Len(), '\0');
		for (size_t Index = 0; Index < Converted.size(); ++Index)
		{
			const TCHAR Char = Chars[Index];
			if (Char == 0)
			{
				Converted.resize(Index);
				return Converted;
			}
			if ((uint32)Char >= 0x80)
			{
				return std::string(FTCHARToUTF8(Chars).Get());
			}
			Converted[Index] = (char)Char;
		}
		return Converted;
	}

	FString FromUtf8(const std::string& Text)
	{
		thread_local std::wstring Converted;
		Converted.resize(Text.size());
		for (size_t Index = 0; Index < Text.size(); ++Index)
		{
			const unsigned char Byte = (unsigned char)Text[Index];
			if (Byte == 0)
			{
				return FString((int32)Index, Converted.c_str());
			}
			if (Byte >= 0x80)
			{
				return FString(FUTF8ToTCHAR(Text.c_str(), (int32)Text.size()).Get());
			}
			Converted[Index] = (TCHAR)Byte;
		}
		return FString((int32)Text.size(), Converted.c_str());
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
		else if (IsRootedWithoutDrive(Path))
		{
			// "/x" is on the current drive, the one the editor's current folder is on.
			Path = Records().World.BaseDir.Left(2) + Path;
		}
		const std::string Host = WindowsDrivePath::ToHost(Records().World.DriveRoot, StandIn::ToUtf8(Path));
		if (Host.empty())
		{
			StandIn::AppendToJournal(std::make_shared<StandIn::FPathRefusalRecord>(FString(WindowsPath)));
		}
		return Host;
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
	void Emit(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, FString&& Message)
	{
		StandIn::AppendToJournal(std::make_shared<StandIn::FLogRecord>(Category.GetCategoryName().ToString(), Verbosity, std::move(Message)));
		if (Verbosity == ELogVerbosity::Fatal)
		{
			std::abort();
		}
	}

	void Emit(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const FString& Message)
	{
		Emit(Category, Verbosity, FString(Message));
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
	StandIn::AppendToJournal(std::make_shared<StandIn::FMessageBoxRecord>(MessageType, Message, OptTitle ? *OptTitle : FText()));
	return MessageType == EAppMsgType::Ok ? EAppReturnType::Ok : DefaultValue;
}

BOOL SetFileAttributesW(LPCWSTR lpFileName, DWORD dwFileAttributes)
{
	StandIn::AppendToJournal(std::make_shared<StandIn::FFileAttributesRecord>(FString(lpFileName), (uint32)dwFileAttributes));
	struct stat Info;
	return stat(StandInWorld::ToHost(lpFileName).c_str(), &Info) == 0 ? 1 : 0;
}
