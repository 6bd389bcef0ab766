#pragma once

#include "CoreTypes.h"
#include <memory>
#include <utility>

// Shared pointers over std::shared_ptr: the reference-counting semantics the module relies on (shared
// ownership, weak references, AsShared, null checks) are the same.

namespace ESPMode
{
	enum Type
	{
		NotThreadSafe = 0,
		Fast = 0,
		ThreadSafe = 1
	};
}

template <class ObjectType, ESPMode::Type Mode = ESPMode::Fast>
class TSharedRef;
template <class ObjectType, ESPMode::Type Mode = ESPMode::Fast>
class TSharedPtr;
template <class ObjectType, ESPMode::Type Mode = ESPMode::Fast>
class TWeakPtr;

// What MakeShareable returns; converts to either pointer kind.
template <class ObjectType>
struct TRawPtrProxy
{
	ObjectType* Object;
};

template <class ObjectType, ESPMode::Type Mode>
class TSharedPtr
{
public:
	TSharedPtr() = default;
	TSharedPtr(std::nullptr_t) {}
	template <class OtherType>
	explicit TSharedPtr(OtherType* InObject)
		: Impl(InObject) {}
	template <class OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Impl(Other.Impl) {}
	template <class OtherType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other)
		: Impl(Other.Impl) {}
	explicit TSharedPtr(std::shared_ptr<ObjectType> InImpl)
		: Impl(std::move(InImpl)) {}
	template <class OtherType>
	TSharedPtr(const TRawPtrProxy<OtherType>& Proxy)
		: Impl(Proxy.Object) {}

	ObjectType* Get() const { return Impl.get(); }
	bool IsValid() const { return Impl != nullptr; }
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
	TSharedRef<ObjectType, Mode> ToSharedRef() const;
	int32 GetSharedReferenceCount() const { return (int32)Impl.use_count(); }
	bool IsUnique() const { return Impl.use_count() == 1; }

	template <class OtherType>
	bool operator==(const TSharedPtr<OtherType, Mode>& Other) const { return Impl == Other.Impl; }
	template <class OtherType>
	bool operator!=(const TSharedPtr<OtherType, Mode>& Other) const { return Impl != Other.Impl; }
	bool operator==(std::nullptr_t) const { return Impl == nullptr; }
	bool operator!=(std::nullptr_t) const { return Impl != nullptr; }

	std::shared_ptr<ObjectType> Impl;
};

template <class ObjectType, ESPMode::Type Mode>
class TSharedRef
{
public:
	template <class OtherType>
	explicit TSharedRef(OtherType* InObject)
		: Impl(InObject) { check(InObject != nullptr); }
	template <class OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other)
		: Impl(Other.Impl) {}
	explicit TSharedRef(std::shared_ptr<ObjectType> InImpl)
		: Impl(std::move(InImpl)) { check(Impl != nullptr); }
	template <class OtherType>
	TSharedRef(const TRawPtrProxy<OtherType>& Proxy)
		: Impl(Proxy.Object) { check(Proxy.Object != nullptr); }

	ObjectType& Get() const { return *Impl; }
	ObjectType& operator*() const { return *Impl; }
	ObjectType* operator->() const { return Impl.get(); }
	bool IsUnique() const { return Impl.use_count() == 1; }
	int32 GetSharedReferenceCount() const { return (int32)Impl.use_count(); }
	TSharedPtr<ObjectType, Mode> ToSharedPtr() const { return TSharedPtr<ObjectType, Mode>(Impl); }

	template <class OtherType>
	bool operator==(const TSharedRef<OtherType, Mode>& Other) const { return Impl == Other.Impl; }
	template <class OtherType>
	bool operator!=(const TSharedRef<OtherType, Mode>& Other) const { return Impl != Other.Impl; }

	std::shared_ptr<ObjectType> Impl;
};

template <class ObjectType, ESPMode::Type Mode>
TSharedRef<ObjectType, Mode> TSharedPtr<ObjectType, Mode>::ToSharedRef() const
{
	check(IsValid());
	return TSharedRef<ObjectType, Mode>(Impl);
}

template <class ObjectType, ESPMode::Type Mode>
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

	TSharedPtr<ObjectType, Mode> Pin() const { return TSharedPtr<ObjectType, Mode>(Impl.lock()); }
	bool IsValid() const { return !Impl.expired(); }
	void Reset() { Impl.reset(); }

	std::weak_ptr<ObjectType> Impl;
};

template <class ObjectType, ESPMode::Type Mode = ESPMode::Fast>
class TSharedFromThis : public std::enable_shared_from_this<ObjectType>
{
public:
	TSharedRef<ObjectType, Mode> AsShared()
	{
		std::shared_ptr<ObjectType> Shared = this->weak_from_this().lock();
		check(Shared != nullptr);
		return TSharedRef<ObjectType, Mode>(Shared);
	}
	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		std::shared_ptr<const ObjectType> Shared = this->weak_from_this().lock();
		check(Shared != nullptr);
		return TSharedRef<const ObjectType, Mode>(Shared);
	}

protected:
	template <class OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* ThisPtr)
	{
		return TSharedRef<OtherType, Mode>(std::static_pointer_cast<OtherType>(ThisPtr->AsShared().Impl));
	}
	template <class OtherType>
	static TSharedRef<const OtherType, Mode> SharedThis(const OtherType* ThisPtr)
	{
		return TSharedRef<const OtherType, Mode>(std::static_pointer_cast<const OtherType>(ThisPtr->AsShared().Impl));
	}
};

template <class ObjectType>
TRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject)
{
	return TRawPtrProxy<ObjectType>{InObject};
}

template <class ObjectType, typename... ArgTypes>
TSharedRef<ObjectType> MakeShared(ArgTypes&&... Args)
{
	return TSharedRef<ObjectType>(std::make_shared<ObjectType>(std::forward<ArgTypes>(Args)...));
}

template <class ToType, class FromType, ESPMode::Type Mode>
TSharedRef<ToType, Mode> StaticCastSharedRef(const TSharedRef<FromType, Mode>& InRef)
{
	return TSharedRef<ToType, Mode>(std::static_pointer_cast<ToType>(InRef.Impl));
}

template <class ToType, class FromType, ESPMode::Type Mode>
TSharedPtr<ToType, Mode> StaticCastSharedPtr(const TSharedPtr<FromType, Mode>& InPtr)
{
	return TSharedPtr<ToType, Mode>(std::static_pointer_cast<ToType>(InPtr.Impl));
}

template <class ToType, class FromType, ESPMode::Type Mode>
TSharedRef<ToType, Mode> ConstCastSharedRef(const TSharedRef<FromType, Mode>& InRef)
{
	return TSharedRef<ToType, Mode>(std::const_pointer_cast<ToType>(InRef.Impl));
}
