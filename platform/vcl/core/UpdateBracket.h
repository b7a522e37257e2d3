#pragma once

namespace vcl {

/// Changes a list between its `BeginUpdate` and `EndUpdate`, which is called also when the change raises.
/// `EndUpdate` may raise what hears of the update.
template <class List, class Body>
void WithinUpdate(List& list, Body change) {
    list.BeginUpdate();
    try {
        change();
    } catch (...) {
        list.EndUpdate();
        throw;
    }
    list.EndUpdate();
}

}  // namespace vcl
