#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/GuiHandles.h"

namespace test {

/// Everything of a process that can leak, at one moment: the ledger (handles by kind, objects by class), GDI
/// objects, windows, menus; icons when asked for, since the system loads its own when they are first needed.
class ResourceSnapshot {
public:
    enum class Icons { Ignore, Count };
    [[nodiscard]] static ResourceSnapshot Take(Icons icons = Icons::Ignore);
    /// What now lives more or less than then, a line each; empty when nothing. Takes a snapshot of the same
    /// kind.
    [[nodiscard]] std::string ChangeSince() const;

private:
    HandleCounts FCounts;
    Icons FIcons = Icons::Ignore;
};

/// Fixture for every test that makes handles, windows or objects: it fails the test when something is left
/// behind and names it, and when the heap is damaged.
///
/// Fixtures that create things in SetUp and free them in TearDown call the base first in SetUp and last in
/// TearDown.
class LedgerTest : public testing::Test {
public:
    /// Registers something to do before each snapshot, such as making the objects that live as long as the
    /// process. Lasts until the end of the process.
    static void BeforeSnapshots(std::function<void()> action);

protected:
    void SetUp() override;
    void TearDown() override;
    /// Counts icons and cursors too; call it in the constructor of the fixture.
    void CountIconsToo() { FIcons = ResourceSnapshot::Icons::Count; }
    /// For a test that changes what lives on purpose: from here on counts the present state.
    void TakeSnapshot();
    /// What changed since the start of the test (or the last TakeSnapshot); empty when nothing.
    [[nodiscard]] std::string Leaks() const;

private:
    ResourceSnapshot::Icons FIcons = ResourceSnapshot::Icons::Ignore;
    ResourceSnapshot FBefore;
};

}  // namespace test
