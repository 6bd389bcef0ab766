#include "WindowsDrivePath.h"
#include "WideCharacterClasses.h"
#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace
{
	// Windows gives up after this many links in one path, as Linux does after 40.
	const int MaxLinksFollowed = 40;

	bool IsSeparator(char Char)
	{
		return Char == '/' || Char == '\\';
	}

	// The names of a path, "." and ".." taken away; ".." at the top stays at the top.
	void AppendLexically(std::vector<std::string>& Names, const std::string& Path)
	{
		size_t Start = 0;
		while (Start <= Path.size())
		{
			size_t End = Start;
			while (End < Path.size() && !IsSeparator(Path[End]))
			{
				++End;
			}
			const std::string Name = Path.substr(Start, End - Start);
			if (Name == "..")
			{
				if (!Names.empty())
				{
					Names.pop_back();
				}
			}
			else if (!Name.empty() && Name != ".")
			{
				Names.push_back(Name);
			}
			Start = End + 1;
		}
	}

	// A UTF-8 name as NTFS compares it: each character mapped to upper case. Bytes that are not UTF-8
	// stand for themselves.
	std::wstring Folded(const std::string& Name)
	{
		std::wstring Result;
		Result.reserve(Name.size());
		for (size_t Index = 0; Index < Name.size();)
		{
			const unsigned char Lead = (unsigned char)Name[Index];
			const size_t Length = Lead < 0x80 ? 1 : (Lead >> 5) == 0x6 ? 2
												: (Lead >> 4) == 0xE   ? 3
												: (Lead >> 3) == 0x1E  ? 4
																	   : 0;
			bool bValid = Length != 0 && Index + Length <= Name.size();
			unsigned CodePoint = Length == 1 ? Lead : Lead & (0x7F >> Length);
			for (size_t Next = 1; bValid && Next < Length; ++Next)
			{
				const unsigned char Continuation = (unsigned char)Name[Index + Next];
				bValid = (Continuation & 0xC0) == 0x80;
				CodePoint = (CodePoint << 6) | (Continuation & 0x3F);
			}
			Result += WideCharacterClasses::ToUpperCase(bValid ? (wchar_t)CodePoint : (wchar_t)Lead);
			Index += bValid ? Length : 1;
		}
		return Result;
	}

	// The entry of a folder whose name equals Name ignoring case; of several, the first in byte order, so
	// that the answer does not depend on the order the host lists them in.
	bool FindIgnoringCase(const std::string& Folder, const std::string& Name, std::string& OutFound)
	{
		DIR* Directory = opendir(Folder.c_str());
		if (Directory == nullptr)
		{
			return false;
		}
		const std::wstring Wanted = Folded(Name);
		bool bFound = false;
		while (const dirent* Entry = readdir(Directory))
		{
			const std::string Candidate = Entry->d_name;
			if (Candidate != "." && Candidate != ".." && (!bFound || Candidate < OutFound) && Folded(Candidate) == Wanted)
			{
				OutFound = Candidate;
				bFound = true;
			}
		}
		closedir(Directory);
		return bFound;
	}

	struct FDrivePath
	{
		char Drive;
		std::vector<std::string> Names;
	};

	// Where a link's target lies in the Windows world: a host path below "<root>/<drive letter>/". False
	// for a target anywhere else, the drive root's own folder included.
	bool ToDrivePath(const std::string& DriveRoot, const std::string& HostTarget, FDrivePath& OutPath)
	{
		std::vector<std::string> RootNames;
		std::vector<std::string> TargetNames;
		AppendLexically(RootNames, DriveRoot);
		AppendLexically(TargetNames, HostTarget);
		if (TargetNames.size() <= RootNames.size() || !std::equal(RootNames.begin(), RootNames.end(), TargetNames.begin()))
		{
			return false;
		}
		const std::string& DriveFolder = TargetNames[RootNames.size()];
		if (DriveFolder.size() != 1 || !std::isupper((unsigned char)DriveFolder[0]))
		{
			return false;
		}
		OutPath.Drive = DriveFolder[0];
		OutPath.Names.assign(TargetNames.begin() + (long)RootNames.size() + 1, TargetNames.end());
		return true;
	}

	std::string ReadLink(const std::string& Link)
	{
		std::string Target(PATH_MAX, '\0');
		const ssize_t Length = readlink(Link.c_str(), &Target[0], Target.size());
		Target.resize(Length < 0 ? 0 : (size_t)Length);
		return Target;
	}

	// Nearly every path names an existing entry in the case it was made with. The host then finds it in
	// one call and says where it ended, links followed; if that is inside the drive root and is not itself
	// a link, it is the answer. Anything else (a missing name, a name in another case, a last name that is
	// a link, a link that leads out) is left to Resolve.
	bool FindAsItStands(const std::string& DriveRoot, const FDrivePath& Path, std::string& OutHost)
	{
		std::string Host = DriveRoot + "/" + Path.Drive;
		for (const std::string& Name : Path.Names)
		{
			Host += "/" + Name;
		}
		const int Handle = open(Host.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
		if (Handle < 0)
		{
			return false;
		}
		struct stat Info;
		const bool bIsLink = fstat(Handle, &Info) != 0 || S_ISLNK(Info.st_mode);
		const std::string Reached = ReadLink("/proc/self/fd/" + std::to_string(Handle));
		close(Handle);
		if (bIsLink || Reached.compare(0, DriveRoot.size() + 1, DriveRoot + "/") != 0)
		{
			return false;
		}
		OutHost = Reached;
		return true;
	}

	// Each name is looked up as it stands first and, when that fails, among the folder's entries ignoring
	// case. Links met on the way are followed here, not by the host, so that none can lead outside the
	// drive root; the last name may be a link and stays one (so that a link can be removed rather than its
	// target), once its target is known to be inside.
	bool Resolve(const std::string& DriveRoot, FDrivePath Path, int LinksLeft, std::string& OutHost)
	{
		std::string Host = DriveRoot + "/" + Path.Drive;
		struct stat DriveInfo;
		if (lstat(Host.c_str(), &DriveInfo) == 0 && S_ISLNK(DriveInfo.st_mode))
		{
			// A drive is a folder of the root itself, never a way out of it.
			return false;
		}
		for (size_t Index = 0; Index < Path.Names.size(); ++Index)
		{
			std::string Candidate = Host + "/" + Path.Names[Index];
			struct stat Info;
			std::string Found;
			if (lstat(Candidate.c_str(), &Info) != 0 && !(FindIgnoringCase(Host, Path.Names[Index], Found) && lstat((Host + "/" + Found).c_str(), &Info) == 0))
			{
				// Nothing of this name: the rest is what a new entry would be called.
				for (; Index < Path.Names.size(); ++Index)
				{
					Host += "/" + Path.Names[Index];
				}
				break;
			}
			if (!Found.empty())
			{
				Candidate = Host + "/" + Found;
			}
			if (S_ISLNK(Info.st_mode))
			{
				const std::string Target = ReadLink(Candidate);
				FDrivePath Followed;
				if (LinksLeft == 0 || Target.empty() || !ToDrivePath(DriveRoot, Target[0] == '/' ? Target : Host + "/" + Target, Followed))
				{
					return false;
				}
				Followed.Names.insert(Followed.Names.end(), Path.Names.begin() + (long)Index + 1, Path.Names.end());
				if (Index + 1 < Path.Names.size())
				{
					return Resolve(DriveRoot, Followed, LinksLeft - 1, OutHost);
				}
				std::string TargetHost;
				if (!Resolve(DriveRoot, Followed, LinksLeft - 1, TargetHost))
				{
					return false;
				}
			}
			Host = Candidate;
		}
		OutHost = Host;
		return true;
	}
}

namespace WindowsDrivePath
{
	const char* DriveRootVariable()
	{
		return "UGC_DRIVE_ROOT";
	}

	bool HasDriveLetter(const std::string& Path)
	{
		return Path.size() >= 2 && std::isalpha((unsigned char)Path[0]) && Path[1] == ':';
	}

	std::string WithForwardSlashes(std::string Path)
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

	std::string ToHost(const std::string& DriveRoot, const std::string& WindowsPath)
	{
		if (!HasDriveLetter(WindowsPath))
		{
			return std::string();
		}
		FDrivePath Path;
		Path.Drive = (char)std::toupper((unsigned char)WindowsPath[0]);
		AppendLexically(Path.Names, WindowsPath.substr(2));
		std::string Root = DriveRoot;
		while (Root.size() > 1 && Root.back() == '/')
		{
			Root.pop_back();
		}
		std::string Host;
		return FindAsItStands(Root, Path, Host) || Resolve(Root, Path, MaxLinksFollowed, Host) ? Host : std::string();
	}

	std::string ToHostFromEnvironment(const std::string& Path)
	{
		const char* Root = std::getenv(DriveRootVariable());
		const std::string DriveRoot = Root ? Root : ".";
		if (HasDriveLetter(Path) || Path.empty() || IsSeparator(Path[0]))
		{
			return ToHost(DriveRoot, Path);
		}
		char Current[PATH_MAX];
		FDrivePath CurrentFolder;
		if (getcwd(Current, sizeof(Current)) == nullptr || !ToDrivePath(DriveRoot, Current, CurrentFolder))
		{
			return std::string();
		}
		std::string WindowsPath = std::string(1, CurrentFolder.Drive) + ":";
		for (const std::string& Name : CurrentFolder.Names)
		{
			WindowsPath += "/" + Name;
		}
		return ToHost(DriveRoot, WindowsPath + "/" + Path);
	}
}
