#include "Misc/AutomationTest.h"

FAutomationTestFramework& FAutomationTestFramework::Get()
{
	static FAutomationTestFramework Framework;
	return Framework;
}

bool FAutomationTestFramework::RegisterAutomationTest(const FString& InTestNameToRegister, FAutomationTestBase* InTestToRegister)
{
	return AutomationTestClassNameToInstanceMap.emplace(InTestNameToRegister, InTestToRegister).second;
}

bool FAutomationTestFramework::UnregisterAutomationTest(const FString& InTestNameToUnregister)
{
	return AutomationTestClassNameToInstanceMap.erase(InTestNameToUnregister) > 0;
}

void FAutomationTestBase::AddError(const FString& InError, int32 StackOffset)
{
	Errors.Add(InError);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, int32 Actual, int32 Expected)
{
	if (Actual != Expected)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %d, but it was %d."), What, Expected, Actual), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected)
{
	if (!FString(Actual).Equals(Expected, ESearchCase::CaseSensitive))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, Expected, Actual), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestEqualInsensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected)
{
	if (!FString(Actual).Equals(Expected, ESearchCase::IgnoreCase))
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, Expected, Actual), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestFalse(const TCHAR* What, bool Value)
{
	if (Value)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be false."), What), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestTrue(const TCHAR* What, bool Value)
{
	if (!Value)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be true."), What), 1);
		return false;
	}
	return true;
}

bool FAutomationTestBase::TestNull(const TCHAR* What, const void* Pointer)
{
	if (Pointer != nullptr)
	{
		AddError(FString::Printf(TEXT("Expected '%s' to be null."), What), 1);
		return false;
	}
	return true;
}

FAutomationSpecBase::FAutomationSpecBase(const FString& InName, const bool bInComplexTask)
	: FAutomationTestBase(InName, bInComplexTask)
{
	ScopeStack.push_back(std::make_shared<FScope>());
}

void FAutomationSpecBase::Describe(const FString& InDescription, TFunction<void()> DoWork)
{
	DescriptionStack.push_back(InDescription);
	ScopeStack.push_back(std::make_shared<FScope>());
	DoWork();
	ScopeStack.pop_back();
	DescriptionStack.pop_back();
}

void FAutomationSpecBase::It(const FString& InDescription, TFunction<void()> DoWork)
{
	DescriptionStack.push_back(InDescription);
	// The engine stops at a second case of the same name.
	for (const FSpecCase& Case : Cases)
	{
		check(!Case.Description.Equals(GetDescription(), ESearchCase::CaseSensitive));
	}
	Cases.push_back(FSpecCase{GetDescription(), std::vector<std::shared_ptr<const FScope>>(ScopeStack.begin(), ScopeStack.end()), MoveTemp(DoWork)});
	DescriptionStack.pop_back();
}

void FAutomationSpecBase::BeforeEach(TFunction<void()> DoWork)
{
	ScopeStack.back()->BeforeEach.push_back(MoveTemp(DoWork));
}

void FAutomationSpecBase::AfterEach(TFunction<void()> DoWork)
{
	ScopeStack.back()->AfterEach.push_back(MoveTemp(DoWork));
}

// The description joined by dots, as the engine names a spec's cases; the id of a case is that name too.
FString FAutomationSpecBase::GetDescription() const
{
	FString Joined;
	for (const FString& Part : DescriptionStack)
	{
		if (!Part.IsEmpty())
		{
			Joined += (Joined.IsEmpty() ? FString() : FString(TEXT("."))) + Part;
		}
	}
	return Joined;
}

void FAutomationSpecBase::EnsureDefinitions() const
{
	if (!bHasBeenDefined)
	{
		FAutomationSpecBase* const Self = const_cast<FAutomationSpecBase*>(this);
		Self->Define();
		Self->bHasBeenDefined = true;
	}
}

void FAutomationSpecBase::GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const
{
	EnsureDefinitions();
	for (const FSpecCase& Case : Cases)
	{
		OutBeautifiedNames.Add(Case.Description);
		OutTestCommands.Add(Case.Description);
	}
}

bool FAutomationSpecBase::RunTest(const FString& InParameters)
{
	EnsureDefinitions();
	for (const FSpecCase& Case : Cases)
	{
		if (!Case.Description.Equals(InParameters, ESearchCase::CaseSensitive))
		{
			continue;
		}
		for (const std::shared_ptr<const FScope>& Scope : Case.Scopes)
		{
			for (const TFunction<void()>& Step : Scope->BeforeEach)
			{
				if (!HasAnyErrors())
				{
					Step();
				}
			}
		}
		if (!HasAnyErrors())
		{
			Case.Work();
		}
		for (auto Scope = Case.Scopes.rbegin(); Scope != Case.Scopes.rend(); ++Scope)
		{
			for (auto Step = (*Scope)->AfterEach.rbegin(); Step != (*Scope)->AfterEach.rend(); ++Step)
			{
				(*Step)();
			}
		}
	}
	return true;
}
