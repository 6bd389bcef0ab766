#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointer.h"

#define FUNC_DECLARE_DELEGATE(DelegateName, ...) \
	typedef TBaseDelegate<__VA_ARGS__> DelegateName;
#define FUNC_DECLARE_MULTICAST_DELEGATE(MulticastDelegateName, ...) \
	typedef TMulticastDelegate<__VA_ARGS__> MulticastDelegateName;

#include "Delegates/IDelegateInstance.h"
#include "Delegates/DelegateInstanceInterface.h"
#include "Delegates/DelegateInstancesImpl.h"
#include "Delegates/DelegateSignatureImpl.inl"
#include "Delegates/DelegateCombinations.h"
