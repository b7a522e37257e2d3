#pragma once

#include <string>

#include "designer/model/DesignDocument.h"
#include "tests/support/LedgerTest.h"

namespace designer {

/// A document with the classes of the framework's standard controls and of the package.
class DesignTest : public test::LedgerTest {
protected:
    DesignTest();
    void SetUp() override;
    void TearDown() override;

    /// Begins with a form `Form1: TForm1` with this in it.
    void Begin(const String& contents);
    /// Ends with the document.
    void Close() { FDocument.reset(); }
    /// The component of that name; fails the test when there is none.
    TComponent& Find(const String& name);
    template <class T>
    T& Find(const String& name) {
        return dynamic_cast<T&>(Find(name));
    }
    void Choose(std::initializer_list<const wchar_t*> names);
    TDesignDocument& Document() { return *FDocument; }

private:
    std::unique_ptr<TDesignDocument> FDocument;
};

}  // namespace designer
