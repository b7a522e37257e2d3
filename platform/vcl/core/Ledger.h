#pragma once

#include <map>
#include <string>

namespace vcl {

class TObject;

/// Counts what lives: handles by kind ("bitmap", "brush", "window" ...), timers and objects by class. Tests
/// compare two snapshots; a remainder names what leaked. Costs nothing in builds without VCL_LEDGER, where
/// all counts are 0.
class TLedger {
public:
    using Counts = std::map<std::string, long>;

    /// Notes that a handle of the kind was made (+1) or released (-1). `kind` is a literal.
    static void Count(const char* kind, int change);
    static void AddObject(const TObject* object);
    static void RemoveObject(const TObject* object);
    /// Everything that lives now: handle kinds by their name, objects by "object:" and their class name.
    [[nodiscard]] static Counts Snapshot();
    /// What `after` holds more (positive) or less (negative) than `before`; empty when nothing leaked.
    [[nodiscard]] static Counts Difference(const Counts& before, const Counts& after);
    /// True in builds that count.
    [[nodiscard]] static bool IsActive();
};

}  // namespace vcl
