#pragma once

// Shared by the stand-in engine and its helper programs (cmd.exe, the recording tool): a Windows drive
// path "X:/rest" names the host file "<drive root>/X/rest". Everything else is left to the caller.
#include <cctype>
#include <cstdlib>
#include <string>

namespace WindowsDrivePath
{
	// The environment variable through which child programs learn the drive root.
	inline const char* DriveRootVariable()
	{
		return "UGC_DRIVE_ROOT";
	}

	inline bool HasDriveLetter(const std::string& Path)
	{
		return Path.size() >= 2 && std::isalpha((unsigned char)Path[0]) && Path[1] == ':';
	}

	inline std::string WithForwardSlashes(std::string Path)
	{
		for (char& Char : Path)
		{
			if (Char == '\\')
			{
				Char = '/';
			}
		}
		return Path;
	}

	// "C:/a\b" -> "<root>/C/a/b"; paths without a drive letter only get their separators turned.
	inline std::string ToHost(const std::string& DriveRoot, const std::string& Path)
	{
		if (!HasDriveLetter(Path))
		{
			return WithForwardSlashes(Path);
		}
		std::string Rest = WithForwardSlashes(Path.substr(2));
		if (!Rest.empty() && Rest[0] != '/')
		{
			Rest = "/" + Rest;
		}
		return DriveRoot + "/" + (char)std::toupper((unsigned char)Path[0]) + Rest;
	}

	inline std::string ToHostFromEnvironment(const std::string& Path)
	{
		const char* Root = std::getenv(DriveRootVariable());
		return ToHost(Root ? Root : ".", Path);
	}
}
