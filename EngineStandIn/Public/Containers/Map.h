#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include <utility>
#include <vector>

// Keys compare with their own ==, as the default key functions compare them, so FString keys match without
// regard to case, as the engine's do.
template <typename KeyType, typename ValueType, typename SetAllocator, typename KeyFuncs>
class TMap
{
public:
	ValueType& Add(const KeyType& InKey, const ValueType& InValue)
	{
		if (ValueType* Existing = Find(InKey))
		{
			*Existing = InValue;
			return *Existing;
		}
		Pairs.emplace_back(InKey, InValue);
		return Pairs.back().second;
	}
	ValueType* Find(const KeyType& Key)
	{
		for (std::pair<KeyType, ValueType>& Pair : Pairs)
		{
			if (Pair.first == Key)
			{
				return &Pair.second;
			}
		}
		return nullptr;
	}
	const ValueType* Find(const KeyType& Key) const { return const_cast<TMap*>(this)->Find(Key); }
	bool Contains(const KeyType& Key) const { return Find(Key) != nullptr; }
	int32 Remove(const KeyType& Key)
	{
		const size_t OldSize = Pairs.size();
		for (auto It = Pairs.begin(); It != Pairs.end(); ++It)
		{
			if (It->first == Key)
			{
				Pairs.erase(It);
				break;
			}
		}
		return (int32)(OldSize - Pairs.size());
	}
	int32 Num() const { return (int32)Pairs.size(); }
	void Empty(int32 ExpectedNumElements = 0)
	{
		Pairs.clear();
		Pairs.reserve((size_t)ExpectedNumElements);
	}

	// Replaces the array's contents with the values, in the order their keys were first added.
	void GenerateValueArray(TArray<ValueType>& OutArray) const
	{
		OutArray.Empty(Num());
		for (const std::pair<KeyType, ValueType>& Pair : Pairs)
		{
			OutArray.Add(Pair.second);
		}
	}

private:
	std::vector<std::pair<KeyType, ValueType>> Pairs;
};
