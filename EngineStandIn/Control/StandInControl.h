#pragma once

// The one control surface of the stand-in engine: tests and the headless editor set up the Windows world
// here and read what the engine only shows (log lines, message boxes, Win32 calls). The module never
// includes this header.
#include "CoreMinimal.h"
#include "Misc/MessageDialog.h"
#include <functional>
#include <string>
#include <vector>

namespace StandIn
{
	struct FWorld
	{
		// Host folder that holds the drives: "C:/x" is the host file "<DriveRoot>/C/x".
		std::string DriveRoot;
		// As GetCurrentDirectoryW gave it at start-up, plus '/'.
		FString LaunchDir = TEXT("C:/Work/");
		// The engine binaries folder, which is also the editor's current directory.
		FString BaseDir = TEXT("C:/Work/Engine/Binaries/Win64/");
		FString ProjectFilePath = TEXT("C:/Work/Moravane/Moravane.uproject");
	};

	// Starts a fresh world: drive C: present, records cleared, physical layer on top of the platform-file
	// chain, and UGC_DRIVE_ROOT and PATH (with the stand-in's cmd.exe first) set for child programs.
	void ResetWorld(const FWorld& World);
	const FWorld& GetWorld();

	// Host path of a Windows path ("C:/Work/x" -> "<DriveRoot>/C/Work/x"); relative paths are taken from
	// the editor's current directory.
	std::string HostPath(const FString& WindowsPath);

	struct FLogRecord
	{
		FString Category;
		ELogVerbosity::Type Verbosity;
		FString Message;
		// The line as the editor's output log shows it: "LogTemp: Warning: text", "LogTemp: text".
		std::string OutputLine() const;
	};
	const std::vector<FLogRecord>& LogRecords();

	struct FMessageBoxRecord
	{
		EAppMsgType::Type Type;
		FText Message;
	};
	const std::vector<FMessageBoxRecord>& MessageBoxes();

	struct FFileAttributesRecord
	{
		FString Path;
		uint32 Attributes;
	};
	const std::vector<FFileAttributesRecord>& FileAttributeCalls();

	// Called as each log line or message box happens, after it is recorded.
	void SetLogListener(std::function<void(const FLogRecord&)> Listener);
	void SetMessageBoxListener(std::function<void(const FMessageBoxRecord&)> Listener);

	std::string ToUtf8(const FString& Text);
	FString FromUtf8(const std::string& Text);
}
