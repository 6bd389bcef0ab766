#pragma once

// Shared by the stand-in engine and its helper programs (cmd.exe, the recording tool): a Windows drive
// path "X:/rest" names a host file below "<drive root>/X", found there as NTFS finds it.
#include <string>

namespace WindowsDrivePath
{
	// The environment variable through which child programs learn the drive root.
	const char* DriveRootVariable();

	bool HasDriveLetter(const std::string& Path);

	std::string WithForwardSlashes(std::string Path);

	// The host path of a drive path ("C:/a\b" -> "<root>/C/a/b"). As on Windows, '\' and '/' are alike,
	// "." and ".." are taken away before anything is looked up ("C:/.." is "C:/"), and a name matches an
	// existing entry whatever its case; what does not exist yet keeps the case it is given. Directory
	// links are followed; one whose target lies outside the drive root, and every path that is not a
	// drive path, gives an empty path, on which every host call fails as Windows fails on a missing one.
	std::string ToHost(const std::string& DriveRoot, const std::string& WindowsPath);

	// As ToHost, with the drive root from the environment; a relative path is taken from the current
	// folder, which must then be inside the drive root.
	std::string ToHostFromEnvironment(const std::string& Path);
}
