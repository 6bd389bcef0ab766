#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"
#include <type_traits>
#include <utility>

// SNew(SButton).Text(...).OnClicked(...) [ Content ]: the FArguments chain is built first, then "<<="
// makes the widget, shared-owned before Construct runs so that Construct can bind to AsShared().

#define TYPENAME_OUTSIDE_TEMPLATE

#define SNew(WidgetType, ...) \
	MakeTDecl<WidgetType>(#WidgetType, __FILE__, __LINE__, RequiredArgs::MakeRequiredArgs(__VA_ARGS__)) <<= TYPENAME_OUTSIDE_TEMPLATE WidgetType::FArguments()

#define SAssignNew(ExposeAs, WidgetType, ...) \
	MakeTDecl<WidgetType>(#WidgetType, __FILE__, __LINE__, RequiredArgs::MakeRequiredArgs(__VA_ARGS__)).Expose(ExposeAs) <<= TYPENAME_OUTSIDE_TEMPLATE WidgetType::FArguments()

#define SLATE_BEGIN_ARGS(WidgetType)                           \
public:                                                        \
	struct FArguments : public TSlateBaseNamedArgs<WidgetType> \
	{                                                          \
		typedef FArguments WidgetArgsType;                     \
		FArguments()

#define SLATE_END_ARGS() \
	}                    \
	;

#define SLATE_ARGUMENT(ArgType, ArgName)   \
	ArgType _##ArgName;                    \
	WidgetArgsType& ArgName(ArgType InArg) \
	{                                      \
		_##ArgName = InArg;                \
		return this->Me();                 \
	}

#define SLATE_STYLE_ARGUMENT(ArgType, ArgName)    \
	const ArgType* _##ArgName;                    \
	WidgetArgsType& ArgName(const ArgType* InArg) \
	{                                             \
		_##ArgName = InArg;                       \
		return this->Me();                        \
	}

// A value, or a getter that the widget asks again whenever it is painted.
#define SLATE_ATTRIBUTE(AttrType, AttrName)                                                                                                                                                   \
	TAttribute<AttrType> _##AttrName;                                                                                                                                                         \
	WidgetArgsType& AttrName(const TAttribute<AttrType>& InAttribute)                                                                                                                         \
	{                                                                                                                                                                                         \
		_##AttrName = InAttribute;                                                                                                                                                            \
		return this->Me();                                                                                                                                                                    \
	}                                                                                                                                                                                         \
	WidgetArgsType& AttrName##_Lambda(TFunction<AttrType(void)>&& InFunctor)                                                                                                                  \
	{                                                                                                                                                                                         \
		_##AttrName = TAttribute<AttrType>::Create(std::forward<TFunction<AttrType(void)>>(InFunctor));                                                                                       \
		return this->Me();                                                                                                                                                                    \
	}                                                                                                                                                                                         \
	template <class UserClass, typename Var1Type>                                                                                                                                             \
	WidgetArgsType& AttrName(UserClass* InUserObject, typename TAttribute<AttrType>::FGetter::template TSPMethodDelegate_OneVar_Const<UserClass, Var1Type>::FMethodPtr InFunc, Var1Type Var1) \
	{                                                                                                                                                                                         \
		_##AttrName = TAttribute<AttrType>::Create(TAttribute<AttrType>::FGetter::CreateSP(InUserObject, InFunc, Var1));                                                                      \
		return this->Me();                                                                                                                                                                    \
	}

#define SLATE_EVENT(DelegateName, EventName)                                                                                                                            \
	DelegateName _##EventName;                                                                                                                                          \
	WidgetArgsType& EventName(const DelegateName& InDelegate)                                                                                                           \
	{                                                                                                                                                                   \
		_##EventName = InDelegate;                                                                                                                                      \
		return *this;                                                                                                                                                   \
	}                                                                                                                                                                   \
	template <typename FunctorType, typename... VarTypes>                                                                                                               \
	WidgetArgsType& EventName##_Lambda(FunctorType&& InFunctor, VarTypes... Vars)                                                                                       \
	{                                                                                                                                                                   \
		_##EventName = DelegateName::CreateLambda(std::forward<FunctorType>(InFunctor), Vars...);                                                                       \
		return this->Me();                                                                                                                                              \
	}                                                                                                                                                                   \
	template <class UserClass>                                                                                                                                          \
	WidgetArgsType& EventName(UserClass* InUserObject, typename DelegateName::template TSPMethodDelegate<UserClass>::FMethodPtr InFunc)                                 \
	{                                                                                                                                                                   \
		_##EventName = DelegateName::CreateSP(InUserObject, InFunc);                                                                                                    \
		return *this;                                                                                                                                                   \
	}                                                                                                                                                                   \
	template <class UserClass, typename Var1Type>                                                                                                                       \
	WidgetArgsType& EventName(UserClass* InUserObject, typename DelegateName::template TSPMethodDelegate_OneVar<UserClass, Var1Type>::FMethodPtr InFunc, Var1Type Var1) \
	{                                                                                                                                                                   \
		_##EventName = DelegateName::CreateSP(InUserObject, InFunc, Var1);                                                                                              \
		return *this;                                                                                                                                                   \
	}

// Content given with .SlotName()[ Widget ]; SNullWidget until then.
#define SLATE_NAMED_SLOT(DeclarationType, SlotName)                    \
	NamedSlotProperty<DeclarationType> SlotName()                      \
	{                                                                  \
		return NamedSlotProperty<DeclarationType>(*this, _##SlotName); \
	}                                                                  \
	TAlwaysValidWidget _##SlotName;

// The slot filled by [ Widget ] straight after the arguments.
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName)              \
	SLATE_NAMED_SLOT(DeclarationType, SlotName)                    \
	DeclarationType& operator[](const TSharedRef<SWidget> InChild) \
	{                                                              \
		_##SlotName.Widget = InChild;                              \
		return static_cast<WidgetArgsType*>(this)->Me();           \
	}

// Panels take their slots with "+ SPanel::Slot()".
#define SLATE_SUPPORTS_SLOT(SlotType)              \
	TArray<SlotType*> Slots;                       \
	WidgetArgsType& operator+(SlotType& SlotToAdd) \
	{                                              \
		Slots.Add(&SlotToAdd);                     \
		return this->Me();                         \
	}

// What every widget takes besides its own arguments.
template <typename WidgetType>
struct TSlateBaseNamedArgs
{
	typedef typename WidgetType::FArguments WidgetArgsType;

	TSlateBaseNamedArgs()
		: _IsEnabled(true) {}

	SLATE_ATTRIBUTE(bool, IsEnabled)

	WidgetArgsType& Me() { return *(static_cast<WidgetArgsType*>(this)); }
};

struct TAlwaysValidWidget
{
	TAlwaysValidWidget()
		: Widget(SNullWidget::NullWidget) {}

	TSharedRef<SWidget> Widget;
};

template <class DeclarationType>
struct NamedSlotProperty
{
	NamedSlotProperty(DeclarationType& InOwnerDeclaration, TAlwaysValidWidget& ContentToSet)
		: OwnerDeclaration(InOwnerDeclaration), SlotContent(ContentToSet) {}

	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)
	{
		SlotContent.Widget = InChild;
		return OwnerDeclaration;
	}

	DeclarationType& OwnerDeclaration;
	TAlwaysValidWidget& SlotContent;
};

namespace RequiredArgs
{
	// Widgets whose Construct takes nothing but their named arguments.
	struct T0RequiredArgs
	{
		template <class WidgetType>
		void CallConstruct(const TSharedRef<WidgetType>& OnWidget, const typename WidgetType::FArguments& WithNamedArgs) const
		{
			OnWidget->Construct(WithNamedArgs);
		}
	};

	inline T0RequiredArgs MakeRequiredArgs()
	{
		return T0RequiredArgs();
	}

	// Widgets whose Construct takes two values before their named arguments: SNew(SWidget, Arg0, Arg1). The
	// values are held by reference, which lasts as long as the SNew expression that made them.
	template <typename Arg0Type, typename Arg1Type>
	struct T2RequiredArgs
	{
		T2RequiredArgs(Arg0Type&& InArg0, Arg1Type&& InArg1)
			: Arg0(InArg0), Arg1(InArg1) {}

		template <class WidgetType>
		void CallConstruct(const TSharedRef<WidgetType>& OnWidget, const typename WidgetType::FArguments& WithNamedArgs) const
		{
			OnWidget->Construct(WithNamedArgs, std::forward<Arg0Type>(Arg0), std::forward<Arg1Type>(Arg1));
		}

		Arg0Type& Arg0;
		Arg1Type& Arg1;
	};

	template <typename Arg0Type, typename Arg1Type>
	T2RequiredArgs<Arg0Type&&, Arg1Type&&> MakeRequiredArgs(Arg0Type&& InArg0, Arg1Type&& InArg1)
	{
		return T2RequiredArgs<Arg0Type&&, Arg1Type&&>(std::forward<Arg0Type>(InArg0), std::forward<Arg1Type>(InArg1));
	}
} // namespace RequiredArgs

template <class WidgetType, typename RequiredArgsPayloadType>
struct TDecl
{
	TDecl(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, RequiredArgsPayloadType&& InRequiredArgs)
		: _Widget(MakeShareable(new WidgetType())), _RequiredArgs(InRequiredArgs)
	{
		_Widget->SetDebugInfo(InType, InFile, OnLine, sizeof(WidgetType));
	}

	template <class ExposeAsWidgetType>
	TDecl& Expose(TSharedPtr<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = _Widget;
		return *this;
	}
	template <class ExposeAsWidgetType>
	TDecl& Expose(TSharedRef<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = _Widget;
		return *this;
	}

	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) const
	{
		_Widget->SetEnabled(InArgs._IsEnabled);
		_RequiredArgs.CallConstruct(_Widget, InArgs);
		return _Widget;
	}

	const TSharedRef<WidgetType> _Widget;
	RequiredArgsPayloadType& _RequiredArgs;
};

template <typename WidgetType, typename RequiredArgsPayloadType>
TDecl<WidgetType, RequiredArgsPayloadType> MakeTDecl(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, RequiredArgsPayloadType&& InRequiredArgs)
{
	return TDecl<WidgetType, RequiredArgsPayloadType>(InType, InFile, OnLine, std::forward<RequiredArgsPayloadType>(InRequiredArgs));
}
