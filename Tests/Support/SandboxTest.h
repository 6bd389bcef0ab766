#pragma once

#include "StandIn/Journal.h"
#include "StandIn/Records/FileAttributesRecord.h"
#include "StandIn/Records/LogRecord.h"
#include "StandIn/Records/MessageBoxRecord.h"
#include "StandIn/Records/ProcessRecords.h"
#include "StandIn/Records/WindowRecord.h"
#include "StandIn/UserInput.h"
#include "StandIn/WidgetTree.h"
#include "StandIn/World.h"
#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

// How GoogleTest shows engine strings in a failure: as text, not as the bytes of wide characters. A
// localised text shows its namespace and key too.
void PrintTo(const FString& String, std::ostream* Stream);
void PrintTo(const FText& Text, std::ostream* Stream);

// A fresh Windows world in a temporary folder for every test; paths are given in Windows form.
class FSandboxTest : public ::testing::Test
{
protected:
	void SetUp() override;
	void TearDown() override;

	// The default world on this test's drive root; change it and pass it to ResetWorld.
	StandIn::FWorld DefaultWorld() const;
	void ResetWorld(const StandIn::FWorld& World);
	// The active culture translates the localised text of this namespace and key; it starts a fresh world
	// from the current one.
	void Translate(const std::string& Namespace, const std::string& Key, const std::string& Translation);

	// The images an installed editor has for the module's style set: the project's Resources, copied from
	// the repository as a game project gets them, and the checkerboard of every style set's default brush.
	void InstallStyleImages() const;

	std::filesystem::path Host(const std::string& WindowsPath) const;
	void WriteFile(const std::string& WindowsPath, const std::string& Bytes) const;
	std::string ReadFile(const std::string& WindowsPath) const;
	// True for files, folders and links, dangling or not.
	bool Exists(const std::string& WindowsPath) const;
	bool IsLink(const std::string& WindowsPath) const;
	// Every file below a folder, as sorted paths relative to it.
	std::vector<std::string> FilesBelow(const std::string& WindowsPath) const;

	// Puts the recording tool at a Windows path; it will exit with the given code.
	void InstallRecordingTool(const std::string& WindowsPath, int ExitCode = 0) const;
	int ToolCallCount(const std::string& ToolWindowsPath) const;
	std::vector<std::string> ToolCallArguments(const std::string& ToolWindowsPath, int CallNumber) const;
	std::string ToolCallResponseFile(const std::string& ToolWindowsPath, int CallNumber) const;
	// A file the response file handed to the tool named, kept as the tool saw it, by its mount path.
	std::string ToolCallPackedFile(const std::string& ToolWindowsPath, int CallNumber, const std::string& MountPath) const;
	std::filesystem::path ToolCallRecord(const std::string& ToolWindowsPath, int CallNumber, const std::string& Kind) const;

	// Log lines as the output log shows them, and message box texts, in order.
	std::vector<std::string> LogLines() const;
	// LogTemp's lines only, from the given record on.
	std::vector<std::string> LogTempLines(size_t FirstRecord = 0) const;
	std::vector<std::string> MessageBoxTexts() const;

	std::filesystem::path Root;
};

// Engine strings as UTF-8, to be compared case-sensitively.
inline std::string Utf8(const FString& Text)
{
	return StandIn::ToUtf8(Text);
}
inline std::string Utf8(const FText& Text)
{
	return StandIn::ToUtf8(Text.ToString());
}
inline std::string Utf8(const FName& Name)
{
	return StandIn::ToUtf8(Name.ToString());
}

// The bytes of a file on the host; empty when there is none.
std::string ReadAll(const std::filesystem::path& Path);
std::vector<std::string> SplitLines(const std::string& Text);
// A command run by the host's /bin/sh, with the wait status the host's system(3) gives. A test program is
// linked with the stand-in, whose system() is the Windows runtime's and runs cmd.exe.
int HostShell(const std::string& Command);
std::vector<std::string> ToUtf8Strings(const TArray<FString>& Items);
