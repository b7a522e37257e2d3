#pragma once

#include <memory>

#include "tests/support/FormTest.h"

namespace test {

/// Fixture of a chapter of the manual: a shown form of the class that holds the chapter's code.
template <class MainForm>
class ChapterTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        FMain = std::make_unique<MainForm>(nullptr);
        FMain->SetBounds(100, 100, 500, 300);
        FMain->Show();
    }
    void TearDown() override {
        FMain.reset();
        FormTest::TearDown();
    }
    [[nodiscard]] MainForm& Main() { return *FMain; }

private:
    std::unique_ptr<MainForm> FMain;
};

}  // namespace test
