// Ownership rules the module's widgets and delegates rely on, as UE 4.26 defines them.
#include "CoreMinimal.h"
#include <gtest/gtest.h>

namespace
{
	class FOwned : public TSharedFromThis<FOwned>
	{
	public:
		void Touch(int32 Amount) { Touched += Amount; }
		int32 Touched = 0;
	};
} // namespace

TEST(StandInSharedPointers, AsSharedGivesTheOwnerAnObjectWasSharedWith)
{
	const TSharedRef<FOwned> FromShareable = MakeShareable(new FOwned());
	EXPECT_TRUE(FromShareable->AsShared() == FromShareable);

	const TSharedRef<FOwned> FromMakeShared = MakeShared<FOwned>();
	const TSharedPtr<FOwned> Again = FromMakeShared->AsShared();
	EXPECT_TRUE(Again == TSharedPtr<FOwned>(FromMakeShared));

	const TSharedPtr<FOwned> FromRaw(new FOwned());
	EXPECT_TRUE(TSharedPtr<FOwned>(FromRaw->AsShared()) == FromRaw);
}

TEST(StandInSharedPointers, ADelegateBoundToAnObjectThatIsGoneIsUnbound)
{
	DECLARE_DELEGATE_OneParam(FOnTouch, int32);
	TSharedPtr<FOwned> Owned = MakeShared<FOwned>();
	const FOnTouch ByRef = FOnTouch::CreateSP(Owned.ToSharedRef(), &FOwned::Touch);
	const FOnTouch ByPointer = FOnTouch::CreateSP(Owned.Get(), &FOwned::Touch);
	EXPECT_TRUE(ByRef.ExecuteIfBound(2));
	EXPECT_TRUE(ByPointer.ExecuteIfBound(3));
	EXPECT_EQ(Owned->Touched, 5);

	Owned.Reset();
	EXPECT_FALSE(ByRef.IsBound());
	EXPECT_FALSE(ByPointer.IsBound());
	EXPECT_FALSE(ByRef.ExecuteIfBound(1));
}

TEST(StandInFunctionTest, ACopyOfAMutableFunctionHasAFunctorOfItsOwn)
{
	TFunction<int32()> Original = [Calls = 0]() mutable {
		return ++Calls;
	};
	EXPECT_EQ(Original(), 1);

	TFunction<int32()> Copy = Original;

	EXPECT_EQ(Copy(), 2);
	EXPECT_EQ(Copy(), 3);
	EXPECT_EQ(Original(), 2) << "the copy's calls did not reach the original";
}
