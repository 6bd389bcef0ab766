#include "CoreMinimal.h"
#include "SandboxTest.h"

namespace
{
	bool EnsureThatIsFalse(int Value)
	{
		return ensure(Value > 1);
	}
}

TEST_F(FSandboxTest, FailedEnsureLogsOnceForItsCallSiteAndTheProgramGoesOn)
{
	EXPECT_FALSE(EnsureThatIsFalse(0));
	EXPECT_FALSE(EnsureThatIsFalse(1));
	EXPECT_TRUE(EnsureThatIsFalse(2));

	const std::vector<std::string> Lines = LogLines();
	ASSERT_EQ(Lines.size(), 1u);
	EXPECT_EQ(Lines[0].rfind("LogOutputDevice: Error: Ensure condition failed: Value > 1 [File:", 0), 0u) << Lines[0];
}
