#pragma once

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/Menu.h"

namespace vcl {

/// The rows that main and popup menus publish alike.
inline constexpr auto MenuRows = []<class C>(TClassDefinition<C>&& table) -> TClassDefinition<C>&& {
    return std::move(table)
        .Property(L"AutoHotkeys", &C::GetAutoHotkeys, &C::SetAutoHotkeys, maAutomatic)
        .Property(L"AutoLineReduction", &C::GetAutoLineReduction, &C::SetAutoLineReduction, maAutomatic)
        .Property(L"Images", &C::GetImages, &C::SetImages)
        .Property(L"OwnerDraw", &C::GetOwnerDraw, &C::SetOwnerDraw, false)
        .Event(L"OnChange", &C::OnChange);
};

}  // namespace vcl
