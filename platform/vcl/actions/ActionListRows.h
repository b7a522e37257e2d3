#pragma once

#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

/// The rows that action lists and action managers publish alike.
inline constexpr auto ActionListRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"Images", &C::GetImages, &C::SetImages)
        .Property(L"State", &C::GetState, &C::SetState, asNormal)
        .Event(L"OnChange", &C::OnChange)
        .Event(L"OnExecute", &C::OnExecute)
        .Event(L"OnStateChange", &C::OnStateChange)
        .Event(L"OnUpdate", &C::OnUpdate);
};

}  // namespace vcl
