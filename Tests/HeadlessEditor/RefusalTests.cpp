// What the editor could not have been asked is refused before anything runs: exit status 2, one line on
// standard error that names the value, nothing on standard output and nothing written.
#include "HeadlessEditorTest.h"
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{
	struct FRefusal
	{
		std::vector<std::string> Arguments;
		// A part of the message that names the refused value, quoted.
		std::string Named;
	};
}

TEST_F(FHeadlessEditorTest, ArgumentsTheEditorCouldNotHaveBeenGivenAreRefusedByValueAndNothingIsWritten)
{
	CopyProjectData();
	const std::string SandboxRoot = Sandbox().string();
	std::vector<FRefusal> Refusals = {
		{{"create", "", "Northline"}, "not both \"\" and \"Northline\""},
		{{"create", "Northline", "--template", "Route", "--template", "ServiceMode", "--template", "Route"}, "the template \"Route\" is named twice"},
		{{"create", "North\nline"}, "\"North\xE2\x90\x8Aline\" holds a control character"},
		{{"create", "North\xC0\xAFline"}, "\"North\\xC0\\xAFline\" is not valid UTF-8"},
		{{"cook", "CalverlyBranchLine", "--dirty", "/CalverlyBranchLine/Maps/\tMain"}, "\"/CalverlyBranchLine/Maps/\xE2\x90\x89Main\" holds a control character"},
		{{"distribute", "--plugin", "CalverlyBranchLine", "--dlcs", "Moravane_Base\r"}, "\"Moravane_Base\xE2\x90\x8D\" holds a control character"},
		{{"--project", "C:/Work/Moravane/Mora*vane.uproject", "menus"}, "--project \"C:/Work/Moravane/Mora*vane.uproject\" holds '*'"},
	};
	for (const char Forbidden : std::string("\"<>|?"))
	{
		const std::string LaunchDir = std::string("C:/Wo") + Forbidden + "rk/";
		Refusals.push_back({{"--launch-dir", LaunchDir, "cook", "CalverlyBranchLine", "--save", "all"}, "--launch-dir \"" + LaunchDir + "\" holds '" + Forbidden + "'"});
	}
	const std::map<std::string, std::string> Before = SandboxContent();

	for (FRefusal& Refusal : Refusals)
	{
		Refusal.Arguments.insert(Refusal.Arguments.begin(), {"--root", SandboxRoot});
		const FRun Run = this->Run(Refusal.Arguments);

		EXPECT_EQ(Run.ExitCode, 2) << Refusal.Named;
		EXPECT_EQ(Run.Err.rfind("ugc-editor: ", 0), 0u) << Run.Err;
		EXPECT_NE(Run.Err.find(Refusal.Named), std::string::npos) << Run.Err;
		EXPECT_EQ(Run.Err.find('\n'), Run.Err.size() - 1) << Run.Err;
		EXPECT_EQ(Run.Out, "") << Refusal.Named;
	}
	EXPECT_EQ(SandboxContent(), Before);
}

TEST_F(FHeadlessEditorTest, AProjectFileThatIsMissingOrNotJsonIsRefusedByItsName)
{
	CopyProjectData();
	const std::map<std::string, std::string> Before = SandboxContent();

	const FRun Missing = Run({"--root", Sandbox().string(), "--project", "C:/Work/Nowhere/Moravane.uproject", "create", "Northline"});

	EXPECT_EQ(Missing.ExitCode, 2);
	EXPECT_EQ(Missing.Err, "ugc-editor: the project file \"C:/Work/Nowhere/Moravane.uproject\" is not there\n");
	EXPECT_EQ(Missing.Out, "");
	EXPECT_EQ(SandboxContent(), Before);

	fs::create_directory(Root / "empty");
	const FRun NoDrive = Run({"--root", (Root / "empty").string(), "menus"});

	EXPECT_EQ(NoDrive.ExitCode, 2);
	EXPECT_TRUE(fs::is_empty(Root / "empty"));

	std::ofstream(Drive("Work/Moravane/Moravane.uproject")) << "{ \"FileVersion\": 3, ";
	const FRun NotJson = Run({"--root", Sandbox().string(), "cook", "CalverlyBranchLine"});

	EXPECT_EQ(NotJson.ExitCode, 2);
	EXPECT_EQ(NotJson.Err, "ugc-editor: the project file \"C:/Work/Moravane/Moravane.uproject\" is not JSON\n");
	EXPECT_EQ(NotJson.Out, "");
}

TEST_F(FHeadlessEditorTest, CreateWithoutTheModTemplatesSaysWhatIsMissingBeforeTheWizardRuns)
{
	const FRun NoTemplates = Run({"--root", Sandbox().string(), "create", "Northline"});
	CopyProjectData();
	fs::remove_all(Drive("Work/Moravane/Templates/BaseTemplate"));
	const FRun NoBaseTemplate = Run({"--root", Sandbox().string(), "create", "Northline", "--template", "Route"});

	EXPECT_EQ(NoTemplates.ExitCode, 2);
	EXPECT_NE(NoTemplates.Err.find("no mod templates: \"C:/Work/Moravane/Templates/\" is not there"), std::string::npos) << NoTemplates.Err;
	EXPECT_EQ(NoTemplates.Out, "");
	EXPECT_EQ(NoBaseTemplate.ExitCode, 2);
	EXPECT_NE(NoBaseTemplate.Err.find("no base template: \"C:/Work/Moravane/Templates/BaseTemplate/\" is not there"), std::string::npos) << NoBaseTemplate.Err;
	EXPECT_EQ(NoBaseTemplate.Out, "");
	EXPECT_FALSE(fs::exists(Drive("Work/Moravane/Plugins/Northline")));
}
