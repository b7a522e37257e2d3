#pragma once

#include <memory>

#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/streaming/SampleComponents.h"

namespace vcl {

/// Reads forms of the sample classes.
class ReaderTest : public test::LedgerTest {
protected:
    void SetUp() override {
        LedgerTest::SetUp();
        TSample::TakeLog();
    }
    void TearDown() override {
        Form.reset();
        LedgerTest::TearDown();
    }

    /// Reads a whole form into `Form`.
    TSampleForm& Read(const String& text) {
        Form = std::make_unique<TSampleForm>(nullptr);
        const TFormDocument document = ParseFormText(text, L"Form.dfm");
        TReader(document).ReadRootComponent(Form.get());
        return *Form;
    }
    /// The same of a form `Form: TSampleForm` with this in it.
    TSampleForm& ReadWith(const String& contents) {
        return Read(L"object Form: TSampleForm\n" + contents + L"\nend");
    }
    /// What reading such a form raises.
    std::string RaisedWith(const String& contents) {
        try {
            ReadWith(contents);
        } catch (const EFormError& error) {
            LastProblem = error.Problem();
            return error.what();
        }
        return "nothing raised";
    }

    SampleClasses Classes;
    std::unique_ptr<TSampleForm> Form;
    TFormProblem LastProblem;
};

}  // namespace vcl
