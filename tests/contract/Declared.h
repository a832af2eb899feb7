// For tests of what tessary.h declares: each names the exact type of one declaration, so that another type is
// an error of the compiler, and takes its address, so that a missing definition is one of the linker.
#pragma once

#include "tessary.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>

/// A function, one of several of its name where that is overloaded: Declared<int(int, int)>(Get_DayCount).
template <class Function> bool Declared(Function* function)
{
    Function* volatile kept = function;
    return kept != nullptr;
}

/// A member, data or function: Member<int(POINT, int)>(&CPtrnData::TestTitle).
template <class Type, class Class> bool Member(Type Class::*member)
{
    Type Class::*volatile kept = member;
    return kept != nullptr;
}

/// A global object: Global<char[257]>(ProfName).
template <class Type> bool Global(Type& object)
{
    static_assert(sizeof(Type) > 0);
    Type* volatile kept = &object;
    return kept != nullptr;
}

/// Whether the members of an object lie one behind the other.
inline bool ascending(std::initializer_list<const void*> members)
{
    return std::is_sorted(members.begin(), members.end());
}
