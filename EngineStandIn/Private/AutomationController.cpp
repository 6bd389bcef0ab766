#include "Misc/AutomationTest.h"
#include "StandIn/Automation.h"
#include <algorithm>

DEFINE_LOG_CATEGORY_STATIC(LogAutomationController, Log, All);

namespace StandIn
{
	// One case of one registered test, named as the controller names it.
	struct FAutomationTestCase
	{
		FAutomationTestBase* Test = nullptr;
		FString FullTestPath;
		// The last part of the path: the Session Frontend shows the path as a tree.
		FString DisplayName;
		FString Parameter;
	};

	class FAutomationControllerAccess
	{
	public:
		static std::vector<FAutomationTestCase> AllTestCases()
		{
			std::vector<FAutomationTestCase> Cases;
			for (const std::pair<const FString, FAutomationTestBase*>& Entry : FAutomationTestFramework::Get().AutomationTestClassNameToInstanceMap)
			{
				FAutomationTestBase* const Test = Entry.second;
				TArray<FString> BeautifiedNames;
				TArray<FString> Parameters;
				Test->GetTests(BeautifiedNames, Parameters);
				for (int32 Index = 0; Index < Parameters.Num(); ++Index)
				{
					FAutomationTestCase Case;
					Case.Test = Test;
					Case.FullTestPath = Test->GetBeautifiedTestName() + TEXT(".") + BeautifiedNames[Index];
					Case.Parameter = Parameters[Index];
					Case.DisplayName = Case.FullTestPath.Mid(Case.FullTestPath.Find(TEXT("."), ESearchCase::CaseSensitive, ESearchDir::FromEnd) + 1);
					Cases.push_back(Case);
				}
			}
			return Cases;
		}

		// The errors the case reported; empty when it passed.
		static TArray<FString> Run(const FAutomationTestCase& Case)
		{
			Case.Test->Errors.Reset();
			Case.Test->RunTest(Case.Parameter);
			return Case.Test->Errors;
		}
	};

	FAutomationRunSummary RunAutomationTests(const FString& Filter)
	{
		const FString FilterWithoutBlanks = Filter.Replace(TEXT(" "), TEXT(""));
		std::vector<FAutomationTestCase> Cases = FAutomationControllerAccess::AllTestCases();
		std::sort(Cases.begin(), Cases.end(), [](const FAutomationTestCase& Lhs, const FAutomationTestCase& Rhs) {
			return Lhs.FullTestPath < Rhs.FullTestPath;
		});

		FAutomationRunSummary Summary;
		for (const FAutomationTestCase& Case : Cases)
		{
			if (!Case.FullTestPath.Replace(TEXT(" "), TEXT("")).Contains(FilterWithoutBlanks, ESearchCase::IgnoreCase))
			{
				continue;
			}
			UE_LOG(LogAutomationController, Display, TEXT("Test Started. Name={%s}"), *Case.DisplayName);
			const TArray<FString> Errors = FAutomationControllerAccess::Run(Case);
			++Summary.TestsRun;
			if (Errors.Num() == 0)
			{
				UE_LOG(LogAutomationController, Display, TEXT("Test Completed. Result={Passed} Name={%s} Path={%s}"), *Case.DisplayName, *Case.FullTestPath);
			}
			else
			{
				++Summary.TestsFailed;
				UE_LOG(LogAutomationController, Error, TEXT("Test Completed. Result={Failed} Name={%s} Path={%s}"), *Case.DisplayName, *Case.FullTestPath);
			}
			// The test's events follow its result, bracketed for the tools that parse the log.
			UE_LOG(LogAutomationController, Log, TEXT("BeginEvents: %s"), *Case.FullTestPath);
			for (const FString& Error : Errors)
			{
				UE_LOG(LogAutomationController, Error, TEXT("%s"), *Error);
			}
			UE_LOG(LogAutomationController, Log, TEXT("EndEvents: %s"), *Case.FullTestPath);
		}
		return Summary;
	}
}
