#include "SandboxTest.h"
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace fs = std::filesystem;

std::string ReadAll(const fs::path& Path)
{
	std::ifstream Stream(Path, std::ios::binary);
	std::ostringstream Bytes;
	Bytes << Stream.rdbuf();
	return Bytes.str();
}

void FSandboxTest::SetUp()
{
	std::string Template = (fs::temp_directory_path() / "ugc-sandbox-XXXXXX").string();
	ASSERT_NE(mkdtemp(&Template[0]), nullptr);
	Root = Template;
	ResetWorld(DefaultWorld());
}

void FSandboxTest::TearDown()
{
	std::error_code Error;
	fs::remove_all(Root, Error);
}

StandIn::FWorld FSandboxTest::DefaultWorld() const
{
	StandIn::FWorld World;
	World.DriveRoot = Root.string();
	return World;
}

void FSandboxTest::ResetWorld(const StandIn::FWorld& World)
{
	StandIn::ResetWorld(World);
}

void FSandboxTest::Translate(const std::string& Namespace, const std::string& Key, const std::string& Translation)
{
	StandIn::FWorld World = StandIn::GetWorld();
	World.Translations[{Namespace, Key}] = Translation;
	ResetWorld(World);
}

fs::path FSandboxTest::Host(const std::string& WindowsPath) const
{
	return StandIn::HostPath(StandIn::FromUtf8(WindowsPath));
}

void FSandboxTest::WriteFile(const std::string& WindowsPath, const std::string& Bytes) const
{
	const fs::path Path = Host(WindowsPath);
	fs::create_directories(Path.parent_path());
	std::ofstream(Path, std::ios::binary) << Bytes;
}

void FSandboxTest::InstallStyleImages() const
{
	for (const char* Icon : {"CreateUGC_64x.png", "PackageUGC_64x.png", "DistributeUGC_64x.png"})
	{
		WriteFile(std::string("C:/Work/Moravane/Resources/") + Icon, ReadAll(fs::path(RESOURCES_DIR) / Icon));
	}
	WriteFile("C:/Work/Engine/Content/Slate/Checkerboard.png", ReadAll(fs::path(RESOURCES_DIR) / "Icon128.png"));
}

std::string FSandboxTest::ReadFile(const std::string& WindowsPath) const
{
	return ReadAll(Host(WindowsPath));
}

bool FSandboxTest::Exists(const std::string& WindowsPath) const
{
	std::error_code Error;
	return fs::symlink_status(Host(WindowsPath), Error).type() != fs::file_type::not_found;
}

bool FSandboxTest::IsLink(const std::string& WindowsPath) const
{
	std::error_code Error;
	return fs::is_symlink(fs::symlink_status(Host(WindowsPath), Error));
}

std::vector<std::string> FSandboxTest::FilesBelow(const std::string& WindowsPath) const
{
	std::vector<std::string> Files;
	const fs::path Base = Host(WindowsPath);
	std::error_code Error;
	for (fs::recursive_directory_iterator It(Base, Error), End; It != End; It.increment(Error))
	{
		if (It->is_regular_file())
		{
			Files.push_back(fs::relative(It->path(), Base).generic_string());
		}
	}
	std::sort(Files.begin(), Files.end());
	return Files;
}

void FSandboxTest::InstallRecordingTool(const std::string& WindowsPath, int ExitCode) const
{
	const fs::path Path = Host(WindowsPath);
	fs::create_directories(Path.parent_path());
	fs::copy_file(RECORDING_TOOL_PATH, Path, fs::copy_options::overwrite_existing);
	std::ofstream(Path.string() + ".exitcode") << ExitCode;
}

// What the recording tool left beside itself for one call: "<tool>.call<N>.<Kind>".
fs::path FSandboxTest::ToolCallRecord(const std::string& ToolWindowsPath, int CallNumber, const std::string& Kind) const
{
	return Host(ToolWindowsPath).string() + ".call" + std::to_string(CallNumber) + "." + Kind;
}

int FSandboxTest::ToolCallCount(const std::string& ToolWindowsPath) const
{
	int Count = 0;
	while (fs::exists(ToolCallRecord(ToolWindowsPath, Count + 1, "args")))
	{
		++Count;
	}
	return Count;
}

std::vector<std::string> FSandboxTest::ToolCallArguments(const std::string& ToolWindowsPath, int CallNumber) const
{
	return SplitLines(ReadAll(ToolCallRecord(ToolWindowsPath, CallNumber, "args")));
}

std::string FSandboxTest::ToolCallResponseFile(const std::string& ToolWindowsPath, int CallNumber) const
{
	return ReadAll(ToolCallRecord(ToolWindowsPath, CallNumber, "response"));
}

std::string FSandboxTest::ToolCallPackedFile(const std::string& ToolWindowsPath, int CallNumber, const std::string& MountPath) const
{
	return ReadAll(ToolCallRecord(ToolWindowsPath, CallNumber, "packed") / MountPath);
}

std::vector<std::string> FSandboxTest::LogLines() const
{
	std::vector<std::string> Lines;
	for (const StandIn::FLogRecord* Record : StandIn::JournalRecords<StandIn::FLogRecord>())
	{
		Lines.push_back(Record->Describe());
	}
	return Lines;
}

std::vector<std::string> FSandboxTest::LogTempLines(size_t FirstRecord) const
{
	std::vector<std::string> Lines;
	for (size_t Index = FirstRecord; Index < StandIn::Journal().size(); ++Index)
	{
		const StandIn::FLogRecord* Record = dynamic_cast<const StandIn::FLogRecord*>(StandIn::Journal()[Index].get());
		if (Record != nullptr && Record->Category == TEXT("LogTemp"))
		{
			Lines.push_back(Record->Describe());
		}
	}
	return Lines;
}

std::vector<std::string> FSandboxTest::MessageBoxTexts() const
{
	std::vector<std::string> Texts;
	for (const StandIn::FMessageBoxRecord* Record : StandIn::JournalRecords<StandIn::FMessageBoxRecord>())
	{
		Texts.push_back(StandIn::ToUtf8(Record->Message.ToString()));
	}
	return Texts;
}

void PrintTo(const FString& String, std::ostream* Stream)
{
	*Stream << '"' << StandIn::ToUtf8(String) << '"';
}

void PrintTo(const FText& Text, std::ostream* Stream)
{
	PrintTo(Text.ToString(), Stream);
	const TOptional<FString> Namespace = FTextInspector::GetNamespace(Text);
	const TOptional<FString> Key = FTextInspector::GetKey(Text);
	if (Namespace.IsSet() && Key.IsSet())
	{
		*Stream << " (" << StandIn::ToUtf8(Namespace.GetValue()) << ", " << StandIn::ToUtf8(Key.GetValue()) << ')';
	}
}

std::vector<std::string> SplitLines(const std::string& Text)
{
	std::vector<std::string> Lines;
	std::istringstream Stream(Text);
	for (std::string Line; std::getline(Stream, Line);)
	{
		Lines.push_back(Line);
	}
	return Lines;
}

std::vector<std::string> ToUtf8Strings(const TArray<FString>& Items)
{
	std::vector<std::string> Result;
	for (const FString& Item : Items)
	{
		Result.push_back(StandIn::ToUtf8(Item));
	}
	return Result;
}

int HostShell(const std::string& Command)
{
	const char* Argv[] = {"sh", "-c", Command.c_str(), nullptr};
	pid_t Child = -1;
	if (posix_spawn(&Child, "/bin/sh", nullptr, nullptr, const_cast<char**>(Argv), environ) != 0)
	{
		return -1;
	}
	int Status = -1;
	while (waitpid(Child, &Status, 0) < 0 && errno == EINTR)
	{
	}
	return Status;
}
