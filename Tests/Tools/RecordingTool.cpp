// Stands in for AssetMerger.exe and UnrealPak.exe. A test copies it to the tool's Windows path; each call
// leaves "<tool>.call<N>.args" (one argument a line) beside it, and for a "-create=" argument a copy of the
// response file as "<tool>.call<N>.response". It prints a line on each output stream and exits with the
// number in "<tool>.exitcode", or 0.
#include "Common/WindowsDrivePath.h"
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace fs = std::filesystem;

int main(int argc, char** argv)
{
	const fs::path Self = fs::read_symlink("/proc/self/exe");
	int CallNumber = 1;
	while (fs::exists(Self.string() + ".call" + std::to_string(CallNumber) + ".args"))
	{
		++CallNumber;
	}
	const std::string CallPrefix = Self.string() + ".call" + std::to_string(CallNumber);

	std::ofstream Args(CallPrefix + ".args", std::ios::binary);
	for (int Index = 1; Index < argc; ++Index)
	{
		const std::string Argument = argv[Index];
		Args << Argument << '\n';
		if (Argument.rfind("-create=", 0) == 0)
		{
			std::error_code Error;
			fs::copy_file(WindowsDrivePath::ToHostFromEnvironment(Argument.substr(8)), CallPrefix + ".response", fs::copy_options::overwrite_existing, Error);
		}
	}

	int ExitCode = 0;
	std::ifstream ExitCodeFile(Self.string() + ".exitcode");
	ExitCodeFile >> ExitCode;

	const std::string Name = Self.filename().string();
	std::cout << Name << " stand-in: " << (argc - 1) << " arguments" << std::endl;
	std::cerr << Name << " stand-in: exit code " << ExitCode << std::endl;
	return ExitCode;
}
