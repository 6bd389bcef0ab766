#pragma once

#include "SandboxTest.h"
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

struct FRun
{
	int ExitCode = -1;
	std::string Out;
	std::string Err;
};

// An argument as the host's shell takes it literally.
std::string ShellQuoted(const std::string& Argument);

// ugc-editor run as a user runs it, on a fresh copy of the sample sandbox for every test.
class FHeadlessEditorTest : public ::testing::Test
{
protected:
	void SetUp() override;
	void TearDown() override;

	// The project data the module reads: the command icons and the mod templates.
	void CopyProjectData() const;

	FRun Run(const std::vector<std::string>& Arguments) const;
	// The command line that runs ugc-editor with these arguments on the host's shell.
	std::string CommandLine(const std::vector<std::string>& Arguments) const;

	// Every file and folder below the sandbox with its content, to see that a run changed nothing.
	std::map<std::string, std::string> SandboxContent() const;

	std::filesystem::path Sandbox() const { return Root / "sandbox"; }
	std::filesystem::path Drive(const std::string& Below) const { return Sandbox() / "C" / Below; }

	std::filesystem::path Root;
};
