#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"
#include <memory>
#include <utility>

template <typename T>
struct TDefaultDelete
{
	void operator()(T* Ptr) const { delete Ptr; }
};

// Sole ownership of one object, handed to the deleter with it; moved, never copied.
template <typename T, typename Deleter = TDefaultDelete<T>>
class TUniquePtr
{
public:
	TUniquePtr() = default;
	TUniquePtr(decltype(nullptr)) {}
	explicit TUniquePtr(T* InPtr)
		: Ptr(InPtr)
	{
	}
	template <typename OtherT>
	TUniquePtr(TUniquePtr<OtherT>&& Other)
		: Ptr(Other.Release())
	{
	}
	TUniquePtr(TUniquePtr&& Other) = default;
	TUniquePtr& operator=(TUniquePtr&& Other) = default;
	TUniquePtr(const TUniquePtr&) = delete;
	TUniquePtr& operator=(const TUniquePtr&) = delete;
	TUniquePtr& operator=(decltype(nullptr))
	{
		Ptr.reset();
		return *this;
	}

	bool IsValid() const { return Ptr != nullptr; }
	explicit operator bool() const { return IsValid(); }
	bool operator!() const { return !IsValid(); }
	T* operator->() const { return Ptr.get(); }
	T& operator*() const { return *Ptr; }
	T* Get() const { return Ptr.get(); }
	// Gives up ownership without deleting.
	T* Release() { return Ptr.release(); }
	void Reset(T* InPtr = nullptr) { Ptr.reset(InPtr); }

private:
	std::unique_ptr<T, Deleter> Ptr;
};

template <typename T, typename... ArgTypes>
TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(std::forward<ArgTypes>(Args)...));
}
