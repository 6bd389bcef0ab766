#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include <memory>
#include <type_traits>
#include <utility>

// Shared pointers over std::shared_ptr: the reference-counting semantics the module relies on (shared
// ownership, weak references, AsShared, null checks) are the same. The std pointer stays private; the
// stand-in reaches it through StandInSharedPointer::FAccess only.

enum class ESPMode
{
	NotThreadSafe = 0,
	Fast = 0,
	ThreadSafe = 1
};

template <class ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedRef;
template <class ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedPtr;
template <class ObjectType, ESPMode Mode = ESPMode::Fast>
class TWeakPtr;
template <class ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedFromThis;

namespace StandInSharedPointer
{
	struct FAccess;
}

namespace SharedPointerInternals
{
	// What MakeShareable returns; converts to either pointer kind.
	template <class ObjectType>
	struct FRawPtrProxy
	{
		ObjectType* Object;
	};
} // namespace SharedPointerInternals

template <class ObjectType, ESPMode Mode>
class TSharedPtr
{
public:
	TSharedPtr() = default;
	TSharedPtr(std::nullptr_t) {}
	template <class OtherType>
	explicit TSharedPtr(OtherType* InObject);
	template <class OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Impl(Other.Impl) {}
	template <class OtherType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other)
		: Impl(Other.Impl) {}
	template <class OtherType>
	TSharedPtr(const SharedPointerInternals::FRawPtrProxy<OtherType>& Proxy);

	ObjectType* Get() const { return Impl.get(); }
	const bool IsValid() const { return Impl != nullptr; }
	explicit operator bool() const { return IsValid(); }
	ObjectType& operator*() const
	{
		check(IsValid());
		return *Impl;
	}
	ObjectType* operator->() const
	{
		check(IsValid());
		return Impl.get();
	}
	void Reset() { Impl.reset(); }
	const bool IsUnique() const { return Impl.use_count() == 1; }
	TSharedRef<ObjectType, Mode> ToSharedRef() const&;
	TSharedRef<ObjectType, Mode> ToSharedRef() && { return static_cast<const TSharedPtr&>(*this).ToSharedRef(); }

private:
	template <class, ESPMode>
	friend class TSharedPtr;
	template <class, ESPMode>
	friend class TSharedRef;
	template <class, ESPMode>
	friend class TWeakPtr;
	friend struct StandInSharedPointer::FAccess;

	explicit TSharedPtr(std::shared_ptr<ObjectType> InImpl)
		: Impl(std::move(InImpl)) {}

	std::shared_ptr<ObjectType> Impl;
};

template <class ObjectType, ESPMode Mode>
class TSharedRef
{
public:
	template <class OtherType>
	explicit TSharedRef(OtherType* InObject);
	template <class OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other)
		: Impl(Other.Impl) {}
	template <class OtherType>
	TSharedRef(const SharedPointerInternals::FRawPtrProxy<OtherType>& Proxy);

	ObjectType& Get() const { return *Impl; }
	ObjectType& operator*() const { return *Impl; }
	ObjectType* operator->() const { return Impl.get(); }

private:
	template <class, ESPMode>
	friend class TSharedPtr;
	template <class, ESPMode>
	friend class TSharedRef;
	template <class, ESPMode>
	friend class TWeakPtr;
	friend struct StandInSharedPointer::FAccess;

	explicit TSharedRef(std::shared_ptr<ObjectType> InImpl)
		: Impl(std::move(InImpl)) { check(Impl != nullptr); }

	std::shared_ptr<ObjectType> Impl;
};

template <class ObjectType, ESPMode Mode>
class TWeakPtr
{
public:
	TWeakPtr() = default;
	template <class OtherType>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Impl(Other.Impl) {}
	template <class OtherType>
	TWeakPtr(const TSharedRef<OtherType, Mode>& Other)
		: Impl(Other.Impl) {}

	TSharedPtr<ObjectType, Mode> Pin() const& { return TSharedPtr<ObjectType, Mode>(Impl.lock()); }
	TSharedPtr<ObjectType, Mode> Pin() && { return TSharedPtr<ObjectType, Mode>(Impl.lock()); }
	const bool IsValid() const { return !Impl.expired(); }

private:
	friend struct StandInSharedPointer::FAccess;

	std::weak_ptr<ObjectType> Impl;
};

template <class ObjectType, ESPMode Mode>
class TSharedFromThis
{
public:
	TSharedRef<ObjectType, Mode> AsShared()
	{
		TSharedPtr<ObjectType, Mode> Shared = WeakThis.Pin();
		check(Shared.IsValid());
		return Shared.ToSharedRef();
	}
	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		TSharedPtr<const ObjectType, Mode> Shared = WeakThis.Pin();
		check(Shared.IsValid());
		return Shared.ToSharedRef();
	}

protected:
	TSharedFromThis() {}
	// A copy is a different object: it must not take over the original's owner.
	TSharedFromThis(const TSharedFromThis&) {}
	TSharedFromThis& operator=(const TSharedFromThis&) { return *this; }
	~TSharedFromThis() {}

private:
	friend struct StandInSharedPointer::FAccess;

	// Filled in by the first shared pointer made from the raw object, as the engine's is.
	mutable TWeakPtr<ObjectType, Mode> WeakThis;
};

namespace StandInSharedPointer
{
	struct FAccess
	{
		template <class ObjectType, ESPMode Mode>
		static const std::shared_ptr<ObjectType>& Get(const TSharedRef<ObjectType, Mode>& Ref) { return Ref.Impl; }
		template <class ObjectType, ESPMode Mode>
		static const std::shared_ptr<ObjectType>& Get(const TSharedPtr<ObjectType, Mode>& Ptr) { return Ptr.Impl; }
		template <class ObjectType, ESPMode Mode>
		static const std::weak_ptr<ObjectType>& Get(const TWeakPtr<ObjectType, Mode>& Ptr) { return Ptr.Impl; }
		template <class ObjectType, ESPMode Mode>
		static TSharedRef<ObjectType, Mode> MakeRef(std::shared_ptr<ObjectType> Impl) { return TSharedRef<ObjectType, Mode>(std::move(Impl)); }
		template <class ObjectType, ESPMode Mode>
		static TSharedPtr<ObjectType, Mode> MakePtr(std::shared_ptr<ObjectType> Impl) { return TSharedPtr<ObjectType, Mode>(std::move(Impl)); }

		template <class BaseType, ESPMode Mode, class OwnedType>
		static void EnableSharedFromThis(const TSharedFromThis<BaseType, Mode>* Object, const std::shared_ptr<OwnedType>& Owner)
		{
			if (Object != nullptr && !Object->WeakThis.IsValid())
			{
				std::shared_ptr<BaseType> AsBase = std::const_pointer_cast<typename std::remove_const<OwnedType>::type>(Owner);
				Object->WeakThis.Impl = AsBase;
			}
		}
		// Objects that do not derive from TSharedFromThis have nothing to fill in.
		template <class OwnedType>
		static void EnableSharedFromThis(const void*, const std::shared_ptr<OwnedType>&) {}
	};
} // namespace StandInSharedPointer

template <class ObjectType, ESPMode Mode>
template <class OtherType>
TSharedPtr<ObjectType, Mode>::TSharedPtr(OtherType* InObject)
	: Impl(InObject)
{
	StandInSharedPointer::FAccess::EnableSharedFromThis(InObject, Impl);
}

template <class ObjectType, ESPMode Mode>
template <class OtherType>
TSharedPtr<ObjectType, Mode>::TSharedPtr(const SharedPointerInternals::FRawPtrProxy<OtherType>& Proxy)
	: TSharedPtr(Proxy.Object)
{
}

template <class ObjectType, ESPMode Mode>
TSharedRef<ObjectType, Mode> TSharedPtr<ObjectType, Mode>::ToSharedRef() const&
{
	check(IsValid());
	return TSharedRef<ObjectType, Mode>(Impl);
}

template <class ObjectType, ESPMode Mode>
template <class OtherType>
TSharedRef<ObjectType, Mode>::TSharedRef(OtherType* InObject)
	: Impl(InObject)
{
	check(InObject != nullptr);
	StandInSharedPointer::FAccess::EnableSharedFromThis(InObject, Impl);
}

template <class ObjectType, ESPMode Mode>
template <class OtherType>
TSharedRef<ObjectType, Mode>::TSharedRef(const SharedPointerInternals::FRawPtrProxy<OtherType>& Proxy)
	: TSharedRef(Proxy.Object)
{
}

template <class ObjectType>
SharedPointerInternals::FRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject)
{
	return SharedPointerInternals::FRawPtrProxy<ObjectType>{InObject};
}

template <class ObjectType, ESPMode Mode = ESPMode::Fast, typename... ArgTypes>
TSharedRef<ObjectType, Mode> MakeShared(ArgTypes&&... Args)
{
	std::shared_ptr<ObjectType> Impl = std::make_shared<ObjectType>(std::forward<ArgTypes>(Args)...);
	StandInSharedPointer::FAccess::EnableSharedFromThis(Impl.get(), Impl);
	return StandInSharedPointer::FAccess::MakeRef<ObjectType, Mode>(std::move(Impl));
}

template <class ToType, class FromType, ESPMode Mode>
TSharedRef<ToType, Mode> StaticCastSharedRef(const TSharedRef<FromType, Mode>& InRef)
{
	return StandInSharedPointer::FAccess::MakeRef<ToType, Mode>(std::static_pointer_cast<ToType>(StandInSharedPointer::FAccess::Get(InRef)));
}

template <class ToType, class FromType, ESPMode Mode>
TSharedPtr<ToType, Mode> StaticCastSharedPtr(const TSharedPtr<FromType, Mode>& InPtr)
{
	return StandInSharedPointer::FAccess::MakePtr<ToType, Mode>(std::static_pointer_cast<ToType>(StandInSharedPointer::FAccess::Get(InPtr)));
}

template <class ToType, class FromType, ESPMode Mode>
TSharedRef<ToType, Mode> ConstCastSharedRef(const TSharedRef<FromType, Mode>& InRef)
{
	return StandInSharedPointer::FAccess::MakeRef<ToType, Mode>(std::const_pointer_cast<ToType>(StandInSharedPointer::FAccess::Get(InRef)));
}

// Shared pointers compare by the object they point at, as free functions of any two pointee types.
template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
bool operator==(const TSharedRef<ObjectTypeA, Mode>& InSharedRefA, const TSharedRef<ObjectTypeB, Mode>& InSharedRefB)
{
	return &(InSharedRefA.Get()) == &(InSharedRefB.Get());
}
template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
bool operator!=(const TSharedRef<ObjectTypeA, Mode>& InSharedRefA, const TSharedRef<ObjectTypeB, Mode>& InSharedRefB)
{
	return &(InSharedRefA.Get()) != &(InSharedRefB.Get());
}
template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
bool operator==(const TSharedPtr<ObjectTypeA, Mode>& InSharedPtrA, const TSharedPtr<ObjectTypeB, Mode>& InSharedPtrB)
{
	return InSharedPtrA.Get() == InSharedPtrB.Get();
}
template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
bool operator!=(const TSharedPtr<ObjectTypeA, Mode>& InSharedPtrA, const TSharedPtr<ObjectTypeB, Mode>& InSharedPtrB)
{
	return InSharedPtrA.Get() != InSharedPtrB.Get();
}
template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
bool operator==(const TSharedRef<ObjectTypeA, Mode>& InSharedRef, const TSharedPtr<ObjectTypeB, Mode>& InSharedPtr)
{
	return InSharedPtr.IsValid() && InSharedPtr.Get() == &(InSharedRef.Get());
}
template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
bool operator!=(const TSharedRef<ObjectTypeA, Mode>& InSharedRef, const TSharedPtr<ObjectTypeB, Mode>& InSharedPtr)
{
	return !(InSharedRef == InSharedPtr);
}
template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
bool operator==(const TSharedPtr<ObjectTypeA, Mode>& InSharedPtr, const TSharedRef<ObjectTypeB, Mode>& InSharedRef)
{
	return InSharedRef == InSharedPtr;
}
template <class ObjectTypeA, class ObjectTypeB, ESPMode Mode>
bool operator!=(const TSharedPtr<ObjectTypeA, Mode>& InSharedPtr, const TSharedRef<ObjectTypeB, Mode>& InSharedRef)
{
	return !(InSharedRef == InSharedPtr);
}
template <class ObjectTypeA, ESPMode Mode>
bool operator==(const TSharedPtr<ObjectTypeA, Mode>& InSharedPtrA, decltype(nullptr))
{
	return !InSharedPtrA.IsValid();
}
template <class ObjectTypeA, ESPMode Mode>
bool operator==(decltype(nullptr), const TSharedPtr<ObjectTypeA, Mode>& InSharedPtrA)
{
	return !InSharedPtrA.IsValid();
}
template <class ObjectTypeA, ESPMode Mode>
bool operator!=(const TSharedPtr<ObjectTypeA, Mode>& InSharedPtrA, decltype(nullptr))
{
	return InSharedPtrA.IsValid();
}
template <class ObjectTypeA, ESPMode Mode>
bool operator!=(decltype(nullptr), const TSharedPtr<ObjectTypeA, Mode>& InSharedPtrA)
{
	return InSharedPtrA.IsValid();
}
