#include "HeadlessEditorTest.h"
#include <sys/wait.h>

namespace fs = std::filesystem;

std::string ShellQuoted(const std::string& Argument)
{
	std::string Quoted = "'";
	for (const char Char : Argument)
	{
		Quoted += Char == '\'' ? std::string("'\\''") : std::string(1, Char);
	}
	return Quoted + "'";
}

void FHeadlessEditorTest::SetUp()
{
	std::string Template = (fs::temp_directory_path() / "ugc-editor-XXXXXX").string();
	ASSERT_NE(mkdtemp(&Template[0]), nullptr);
	Root = Template;
	fs::copy(SAMPLE_SANDBOX_DIR, Root / "sandbox", fs::copy_options::recursive);
}

void FHeadlessEditorTest::TearDown()
{
	fs::remove_all(Root);
}

void FHeadlessEditorTest::CopyProjectData() const
{
	fs::copy(REPOSITORY_DIR "/Resources", Drive("Work/Moravane/Resources"), fs::copy_options::recursive);
	fs::copy(REPOSITORY_DIR "/Templates", Drive("Work/Moravane/Templates"), fs::copy_options::recursive);
}

std::string FHeadlessEditorTest::CommandLine(const std::vector<std::string>& Arguments) const
{
	std::string Command = ShellQuoted(UGC_EDITOR_PATH);
	for (const std::string& Argument : Arguments)
	{
		Command += " " + ShellQuoted(Argument);
	}
	return Command;
}

FRun FHeadlessEditorTest::Run(const std::vector<std::string>& Arguments) const
{
	const fs::path Out = Root / "stdout.txt";
	const fs::path Err = Root / "stderr.txt";
	const int Status = HostShell(CommandLine(Arguments) + " > " + ShellQuoted(Out.string()) + " 2> " + ShellQuoted(Err.string()));
	return FRun{WIFEXITED(Status) ? WEXITSTATUS(Status) : -1, ReadAll(Out), ReadAll(Err)};
}

std::map<std::string, std::string> FHeadlessEditorTest::SandboxContent() const
{
	std::map<std::string, std::string> Content;
	for (const fs::directory_entry& Entry : fs::recursive_directory_iterator(Sandbox()))
	{
		Content[Entry.path().string()] = Entry.is_regular_file() ? ReadAll(Entry.path()) : std::string("(folder)");
	}
	return Content;
}
