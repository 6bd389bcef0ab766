#pragma once

// The automation framework as far as the module's specs use it: tests register themselves by name while
// the program starts, a spec is defined once with Describe/It/BeforeEach/AfterEach, and every It becomes
// one test, run as its before-each steps (outermost first), the It, then its after-each steps (innermost
// first). A failed step skips the before-each steps and the It that follow; after-each steps always run.
#include "CoreMinimal.h"
#include <map>
#include <memory>
#include <vector>

#ifndef WITH_AUTOMATION_TESTS
#define WITH_AUTOMATION_TESTS (WITH_DEV_AUTOMATION_TESTS || WITH_PERF_AUTOMATION_TESTS)
#endif

namespace StandIn
{
	class FAutomationControllerAccess;
}

namespace EAutomationTestFlags
{
	enum Type
	{
		EditorContext = 0x00000001,
		ClientContext = 0x00000002,
		ServerContext = 0x00000004,
		CommandletContext = 0x00000008,
		ApplicationContextMask = EditorContext | ClientContext | ServerContext | CommandletContext,

		NonNullRHI = 0x00000100,
		RequiresUser = 0x00000200,
		FeatureMask = NonNullRHI | RequiresUser,

		Disabled = 0x00010000,

		CriticalPriority = 0x00100000,
		HighPriority = 0x00200000,
		MediumPriority = 0x00400000,
		LowPriority = 0x00800000,
		PriorityMask = CriticalPriority | HighPriority | MediumPriority | LowPriority,

		SmokeFilter = 0x01000000,
		EngineFilter = 0x02000000,
		ProductFilter = 0x04000000,
		PerfFilter = 0x08000000,
		StressFilter = 0x10000000,
		NegativeFilter = 0x20000000,
		FilterMask = SmokeFilter | EngineFilter | ProductFilter | PerfFilter | StressFilter | NegativeFilter
	};
}

class FAutomationTestBase;

class CORE_API FAutomationTestFramework
{
public:
	static FAutomationTestFramework& Get();
	static FAutomationTestFramework& GetInstance() { return Get(); }

	bool RegisterAutomationTest(const FString& InTestNameToRegister, FAutomationTestBase* InTestToRegister);
	bool UnregisterAutomationTest(const FString& InTestNameToUnregister);

private:
	friend class StandIn::FAutomationControllerAccess;

	// By the test's class name, as the engine keys them.
	std::map<FString, FAutomationTestBase*> AutomationTestClassNameToInstanceMap;
};

class CORE_API FAutomationTestBase
{
public:
	FAutomationTestBase(const FString& InName, const bool bInComplexTask)
		: bComplexTask(bInComplexTask), TestName(InName)
	{
		FAutomationTestFramework::Get().RegisterAutomationTest(InName, this);
	}

	virtual ~FAutomationTestBase()
	{
		FAutomationTestFramework::Get().UnregisterAutomationTest(TestName);
	}

	virtual uint32 GetTestFlags() const = 0;
	FString GetTestName() const { return TestName; }

	virtual void AddError(const FString& InError, int32 StackOffset = 0);
	bool HasAnyErrors() const { return Errors.Num() > 0; }

	bool TestEqual(const TCHAR* What, int32 Actual, int32 Expected);
	// Compared exactly, letter case included.
	bool TestEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected);
	// The engine compares FStrings ignoring letter case.
	bool TestEqualInsensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected);
	bool TestEqual(const TCHAR* What, const FString& Actual, const TCHAR* Expected) { return TestEqualInsensitive(What, *Actual, Expected); }
	bool TestEqual(const TCHAR* What, const FString& Actual, const FString& Expected) { return TestEqualInsensitive(What, *Actual, *Expected); }

	template <typename ValueType>
	bool TestEqual(const TCHAR* What, const ValueType& Actual, const ValueType& Expected)
	{
		if (Actual != Expected)
		{
			AddError(FString::Printf(TEXT("%s: The two values are not equal."), What), 1);
			return false;
		}
		return true;
	}

	bool TestFalse(const TCHAR* What, bool Value);
	bool TestTrue(const TCHAR* What, bool Value);
	bool TestNull(const TCHAR* What, const void* Pointer);

	template <typename ValueType>
	bool TestNotNull(const TCHAR* What, ValueType* Pointer)
	{
		if (Pointer == nullptr)
		{
			AddError(FString::Printf(TEXT("Expected '%s' to be not null."), What), 1);
			return false;
		}
		return true;
	}

	template <typename ValueType>
	bool TestValid(const TCHAR* Description, const TSharedPtr<ValueType>& SharedPointer)
	{
		if (!SharedPointer.IsValid())
		{
			AddError(FString::Printf(TEXT("%s: The shared pointer is not valid."), Description), 1);
			return false;
		}
		return true;
	}

protected:
	// The beautified names of the test's cases and, for each, the parameter its run is given.
	virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const = 0;
	virtual bool RunTest(const FString& Parameters) = 0;
	virtual FString GetBeautifiedTestName() const = 0;

	bool bComplexTask;
	FString TestName;

private:
	friend class StandIn::FAutomationControllerAccess;

	TArray<FString> Errors;
};

class CORE_API FAutomationSpecBase : public FAutomationTestBase, public TSharedFromThis<FAutomationSpecBase>
{
public:
	FAutomationSpecBase(const FString& InName, const bool bInComplexTask);

	virtual bool RunTest(const FString& InParameters) override;
	virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override;

	void Describe(const FString& InDescription, TFunction<void()> DoWork);
	void It(const FString& InDescription, TFunction<void()> DoWork);
	void BeforeEach(TFunction<void()> DoWork);
	void AfterEach(TFunction<void()> DoWork);

protected:
	virtual void Define() = 0;

private:
	struct FScope
	{
		std::vector<TFunction<void()>> BeforeEach;
		std::vector<TFunction<void()>> AfterEach;
	};

	// One It with the before-each and after-each steps of every scope around it, outermost first.
	struct FSpecCase
	{
		FString Description;
		std::vector<std::shared_ptr<const FScope>> Scopes;
		TFunction<void()> Work;
	};

	void EnsureDefinitions() const;
	FString GetDescription() const;

	bool bHasBeenDefined = false;
	std::vector<FString> DescriptionStack;
	std::vector<std::shared_ptr<FScope>> ScopeStack;
	std::vector<FSpecCase> Cases;
};

#define BEGIN_DEFINE_SPEC(TClass, PrettyName, TFlags)                                                                         \
	class TClass : public FAutomationSpecBase                                                                                 \
	{                                                                                                                         \
	public:                                                                                                                   \
		TClass(const FString& InName)                                                                                         \
			: FAutomationSpecBase(InName, false)                                                                              \
		{                                                                                                                     \
			static_assert((TFlags)&EAutomationTestFlags::ApplicationContextMask, "AutomationTest has no application flag.");  \
			static_assert(((TFlags)&EAutomationTestFlags::FilterMask) != 0, "AutomationTest needs exactly one filter type."); \
		}                                                                                                                     \
		virtual uint32 GetTestFlags() const override { return TFlags; }                                                       \
                                                                                                                              \
	protected:                                                                                                                \
		virtual FString GetBeautifiedTestName() const override { return PrettyName; }                                         \
		virtual void Define() override;

#define END_DEFINE_SPEC(TClass)                               \
	}                                                         \
	;                                                         \
	namespace                                                 \
	{                                                         \
		TClass TClass##AutomationSpecInstance(TEXT(#TClass)); \
	}
