#include "HAL/PlatformFilemanager.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "Misc/AssertionMacros.h"
#include <cwctype>

namespace
{
	// Layer names are matched as the engine's Stricmp matches them: letter case does not count.
	bool NamesMatch(const TCHAR* Lhs, const TCHAR* Rhs)
	{
		for (; *Lhs != 0 && *Rhs != 0; ++Lhs, ++Rhs)
		{
			if (std::towlower(*Lhs) != std::towlower(*Rhs))
			{
				return false;
			}
		}
		return *Lhs == *Rhs;
	}
}

FPlatformFileManager::FPlatformFileManager()
	: TopmostPlatformFile(nullptr)
{
}

FPlatformFileManager& FPlatformFileManager::Get()
{
	static FPlatformFileManager Instance;
	return Instance;
}

IPlatformFile& FPlatformFileManager::GetPlatformFile()
{
	if (TopmostPlatformFile == nullptr)
	{
		TopmostPlatformFile = &IPlatformFile::GetPlatformPhysical();
	}
	return *TopmostPlatformFile;
}

void FPlatformFileManager::SetPlatformFile(IPlatformFile& NewTopmostPlatformFile)
{
	TopmostPlatformFile = &NewTopmostPlatformFile;
	NewTopmostPlatformFile.InitializeAfterSetActive();
}

IPlatformFile* FPlatformFileManager::FindPlatformFile(const TCHAR* Name)
{
	check(TopmostPlatformFile != nullptr);
	for (IPlatformFile* Layer = TopmostPlatformFile; Layer != nullptr; Layer = Layer->GetLowerLevel())
	{
		if (NamesMatch(Layer->GetName(), Name))
		{
			return Layer;
		}
	}
	return nullptr;
}

void FPlatformFileManager::TickActivePlatformFile()
{
	for (IPlatformFile* Layer = TopmostPlatformFile; Layer != nullptr; Layer = Layer->GetLowerLevel())
	{
		Layer->Tick();
	}
}

void FPlatformFileManager::InitializeNewAsyncIO()
{
	// The editor does not run the event-driven loader, so no cached-read layer is taken out first.
	for (IPlatformFile* Layer = TopmostPlatformFile; Layer != nullptr; Layer = Layer->GetLowerLevel())
	{
		Layer->InitializeNewAsyncIO();
	}
}

void FPlatformFileManager::RemovePlatformFile(IPlatformFile* PlatformFileToRemove)
{
	check(TopmostPlatformFile != nullptr);
	check(PlatformFileToRemove != nullptr);
	IPlatformFile* Above = nullptr;
	IPlatformFile* Found = TopmostPlatformFile;
	while (Found != nullptr && Found != PlatformFileToRemove)
	{
		Above = Found;
		Found = Found->GetLowerLevel();
	}
	check(Found == PlatformFileToRemove);
	if (Above != nullptr)
	{
		check(Above->GetLowerLevel() == PlatformFileToRemove);
		Above->SetLowerLevel(PlatformFileToRemove->GetLowerLevel());
	}
	else
	{
		check(PlatformFileToRemove->GetLowerLevel() != nullptr);
		SetPlatformFile(*PlatformFileToRemove->GetLowerLevel());
	}
}
