// Stands in for AssetMerger.exe and UnrealPak.exe. A test copies it to the tool's Windows path; each call
// leaves "<tool>.call<N>.args" (one argument a line) and "<tool>.call<N>.argv0" beside it. For a "-create="
// argument it keeps a copy of the response file as "<tool>.call<N>.response" and of every file the response
// file names, at its mount path below "<tool>.call<N>.packed/", as a pak would hold them. It prints a line on
// each output stream and exits with the number in "<tool>.exitcode", or 0.
#include "Common/WindowsDrivePath.h"
#include <filesystem>
#include <iconv.h>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace
{
	// A response file with a UTF-16LE byte-order mark is read as the pak tool reads it: as text.
	std::string ReadResponseText(const std::string& ResponseFile)
	{
		std::ifstream Stream(ResponseFile, std::ios::binary);
		std::string Bytes((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
		if (Bytes.size() < 2 || (unsigned char)Bytes[0] != 0xFF || (unsigned char)Bytes[1] != 0xFE)
		{
			return Bytes;
		}
		iconv_t Converter = iconv_open("UTF-8", "UTF-16LE");
		std::string Text(Bytes.size() * 2, '\0');
		char* In = &Bytes[2];
		size_t InLeft = Bytes.size() - 2;
		char* Out = &Text[0];
		size_t OutLeft = Text.size();
		iconv(Converter, &In, &InLeft, &Out, &OutLeft);
		iconv_close(Converter);
		Text.resize(Text.size() - OutLeft);
		return Text;
	}

	// Each line reads "SOURCE" "..\..\..\MOUNT".
	void KeepPackedFiles(const std::string& ResponseFile, const fs::path& PackedRoot)
	{
		std::istringstream Response(ReadResponseText(ResponseFile));
		for (std::string Line; std::getline(Response, Line);)
		{
			const size_t SourceEnd = Line.find('"', 1);
			const size_t MountStart = Line.find(" \"..\\..\\..\\");
			if (Line.empty() || Line[0] != '"' || SourceEnd == std::string::npos || MountStart == std::string::npos)
			{
				continue;
			}
			const std::string Source = Line.substr(1, SourceEnd - 1);
			std::string Mount = Line.substr(MountStart + 11);
			Mount = WindowsDrivePath::WithForwardSlashes(Mount.substr(0, Mount.rfind('"')));
			const fs::path Target = PackedRoot / Mount;
			std::error_code Error;
			fs::create_directories(Target.parent_path(), Error);
			fs::copy_file(WindowsDrivePath::ToHostFromEnvironment(Source), Target, fs::copy_options::overwrite_existing, Error);
		}
	}
}

int main(int argc, char** argv)
{
	const fs::path Self = fs::read_symlink("/proc/self/exe");
	int CallNumber = 1;
	while (fs::exists(Self.string() + ".call" + std::to_string(CallNumber) + ".args"))
	{
		++CallNumber;
	}
	const std::string CallPrefix = Self.string() + ".call" + std::to_string(CallNumber);

	std::ofstream(CallPrefix + ".argv0", std::ios::binary) << argv[0];
	std::ofstream Args(CallPrefix + ".args", std::ios::binary);
	for (int Index = 1; Index < argc; ++Index)
	{
		const std::string Argument = argv[Index];
		Args << Argument << '\n';
		if (Argument.rfind("-create=", 0) == 0)
		{
			const std::string ResponseFile = WindowsDrivePath::ToHostFromEnvironment(Argument.substr(8));
			std::error_code Error;
			fs::copy_file(ResponseFile, CallPrefix + ".response", fs::copy_options::overwrite_existing, Error);
			KeepPackedFiles(ResponseFile, CallPrefix + ".packed");
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
