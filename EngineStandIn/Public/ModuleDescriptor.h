#pragma once

#include "CoreMinimal.h"

// When a module is loaded during start-up.
namespace ELoadingPhase
{
	enum Type
	{
		EarliestPossible,
		PostConfigInit,
		PostSplashScreen,
		PreEarlyLoadingScreen,
		PreLoadingScreen,
		PreDefault,
		Default,
		PostDefault,
		PostEngineInit,
		None,
		Max
	};

	PROJECTS_API ELoadingPhase::Type FromString(const TCHAR* Text);
	PROJECTS_API const TCHAR* ToString(const ELoadingPhase::Type Value);
};

// Which kinds of target a module is built for and loaded in.
namespace EHostType
{
	enum Type
	{
		Runtime,
		RuntimeNoCommandlet,
		RuntimeAndProgram,
		CookedOnly,
		UncookedOnly,
		Developer,
		DeveloperTool,
		Editor,
		EditorNoCommandlet,
		EditorAndProgram,
		Program,
		ServerOnly,
		ClientOnly,
		ClientOnlyNoCommandlet,
		Max
	};

	PROJECTS_API EHostType::Type FromString(const TCHAR* Text);
	PROJECTS_API const TCHAR* ToString(const EHostType::Type Value);
};

// A module as a plugin's or project's descriptor lists it.
struct PROJECTS_API FModuleDescriptor
{
	FName Name;
	EHostType::Type Type;
	ELoadingPhase::Type LoadingPhase;

	FModuleDescriptor(const FName InName = NAME_None, EHostType::Type InType = EHostType::Runtime, ELoadingPhase::Type InLoadingPhase = ELoadingPhase::Default);
};
