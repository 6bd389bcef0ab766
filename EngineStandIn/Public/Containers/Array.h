#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"
#include "Misc/AssertionMacros.h"
#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

template <typename ElementType, typename InAllocatorType>
class TArray
{
public:
	TArray() = default;
	TArray(std::initializer_list<ElementType> InitList)
		: Items(InitList) {}

	int32 Num() const { return (int32)Items.size(); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }

	// Out-of-range access is a fatal bounds check, as in the engine.
	ElementType& operator[](int32 Index)
	{
		check(IsValidIndex(Index));
		return Items[(size_t)Index];
	}
	const ElementType& operator[](int32 Index) const
	{
		check(IsValidIndex(Index));
		return Items[(size_t)Index];
	}
	ElementType* GetData() { return Items.data(); }
	const ElementType* GetData() const { return Items.data(); }

	int32 Add(const ElementType& Item)
	{
		Items.push_back(Item);
		return Num() - 1;
	}
	int32 Add(ElementType&& Item)
	{
		Items.push_back(std::move(Item));
		return Num() - 1;
	}
	template <typename... ArgsType>
	int32 Emplace(ArgsType&&... Args)
	{
		Items.emplace_back(std::forward<ArgsType>(Args)...);
		return Num() - 1;
	}
	int32 AddDefaulted(int32 Count = 1)
	{
		const int32 Index = Num();
		Items.resize(Items.size() + (size_t)Count);
		return Index;
	}
	// The reference stays valid until the array grows beyond what it has reserved.
	ElementType& AddDefaulted_GetRef()
	{
		Items.emplace_back();
		return Items.back();
	}
	// The index of the element, added only when it was not there yet.
	int32 AddUnique(const ElementType& Item)
	{
		const int32 Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}
	void Reserve(int32 Number) { Items.reserve((size_t)Number); }
	void Append(const TArray& Other) { Items.insert(Items.end(), Other.Items.begin(), Other.Items.end()); }
	int32 Insert(const ElementType& Item, int32 Index)
	{
		check(Index >= 0 && Index <= Num());
		Items.insert(Items.begin() + Index, Item);
		return Index;
	}
	void RemoveAt(int32 Index)
	{
		check(IsValidIndex(Index));
		Items.erase(Items.begin() + Index);
	}
	// Keeps the order of the remaining elements.
	template <typename PredicateType>
	int32 RemoveAll(const PredicateType& Predicate)
	{
		const int32 OldNum = Num();
		Items.erase(std::remove_if(Items.begin(), Items.end(), Predicate), Items.end());
		return OldNum - Num();
	}
	// Every element equal to the item goes; gives how many went.
	int32 Remove(const ElementType& Item)
	{
		return RemoveAll([&Item](const ElementType& Element) {
			return Element == Item;
		});
	}
	void Empty(int32 Slack = 0)
	{
		Items.clear();
		Items.shrink_to_fit();
		Items.reserve((size_t)Slack);
	}
	void Reset(int32 NewSize = 0)
	{
		Items.clear();
		Items.reserve((size_t)NewSize);
	}
	bool Contains(const ElementType& Item) const { return std::find(Items.begin(), Items.end(), Item) != Items.end(); }
	int32 Find(const ElementType& Item) const
	{
		const auto It = std::find(Items.begin(), Items.end(), Item);
		return It == Items.end() ? INDEX_NONE : (int32)(It - Items.begin());
	}

	bool operator==(const TArray& Other) const { return Items == Other.Items; }
	bool operator!=(const TArray& Other) const { return Items != Other.Items; }

	auto begin() { return Items.begin(); }
	auto end() { return Items.end(); }
	auto begin() const { return Items.begin(); }
	auto end() const { return Items.end(); }

private:
	std::vector<ElementType> Items;
};
