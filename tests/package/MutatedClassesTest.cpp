#include <cstdlib>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/streaming/FormErrors.h"
#include "platform/vcl/streaming/FormFiles.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/package/ClassScene.h"
#include "tests/package/PropertyChanges.h"
#include "tests/support/FormMutations.h"
#include "tests/support/FormTest.h"

// Damaged form files with components of every registered class: each becomes a form, or an error with a
// place.

namespace test {
namespace {

using namespace vcl;

using TFile = std::vector<std::byte>;

class MutatedClasses : public FormTest, public testing::WithParamInterface<const TMetaClass*> {
protected:
    void Run(unsigned count) {
        const auto files = Files();
        for (unsigned seed = 0; seed < count && !HasFailure(); ++seed) {
            SCOPED_TRACE(testing::Message() << "seed " << seed);
            Check(FormMutations(seed).Damage(files[seed % files.size()]));
            Errors.clear();
        }
        EXPECT_GT(FBuilt, 0u);
    }

private:
    /// A form with all that the class publishes changed, in both formats.
    static std::vector<TFile> Files() {
        const ClassScene scene(*GetParam());
        for (const PropertyChange& change : ChangesOf(*scene.Subject, *scene.Root)) {
            // A form that is shown would take the focus with each file.
            if (change.Path == "Visible") continue;
            try {
                change.Apply(*scene.Subject);
            } catch (const Exception&) {
                // Not every value is taken; the others make the file.
            }
        }
        const TFormDocument document = TWriter().WriteRootComponent(*scene.Root);
        return {FormToBytes(document, TFormFormat::Text), FormToBytes(document, TFormFormat::Binary)};
    }

    void Check(const TFile& file) {
        TFormDocument document;
        try {
            document = ParseForm(file, L"Form.dfm");
        } catch (const EFormError& error) {
            EXPECT_EQ(error.Problem().FileName, L"Form.dfm");
            return;
        }
        Build(document);
        Collect(document);
    }

    /// As programs do it.
    void Build(const TFormDocument& document) {
        const std::unique_ptr<TComponent> root(NewRoot());
        TReader reader(document);
        reader.OnFindMethod = [](const String& name, TPersistent&, TEventBase& event) {
            event.SetMethodName(name);
            return true;
        };
        try {
            reader.ReadRootComponent(root.get());
            ++FBuilt;
        } catch (const EFormError& error) {
            EXPECT_EQ(error.Problem().FileName, L"Form.dfm");
            EXPECT_EQ(root->GetComponentCount(), 0);
        }
    }

    /// As designers do it.
    static void Collect(const TFormDocument& document) {
        const std::unique_ptr<TComponent> root(NewRoot());
        root->SetDesigning(true);
        TReader reader(document);
        reader.CollectProblems = true;
        reader.ReadRootComponent(root.get());
        TWriter writer;
        writer.UnreadProperties = &reader.GetUnreadProperties();
        EXPECT_NO_THROW((void)writer.WriteRootComponent(*root));
    }

    static TComponent* NewRoot() {
        const bool isForm = GetParam()->InheritsFrom(TCustomForm::StaticClass());
        return isForm ? GetParam()->Create(nullptr) : new TForm(nullptr);
    }

    unsigned FBuilt = 0;
};

TEST_P(MutatedClasses, AreReadOrRefusedWithAPlace) {
    Run(60);
}

/// FORM_MUTATIONS: how many files are damaged for each class.
class MutatedClassesSoak : public MutatedClasses {};

TEST_P(MutatedClassesSoak, AreReadOrRefusedWithAPlace) {
    const char* count = std::getenv("FORM_MUTATIONS");
    Run(count ? static_cast<unsigned>(std::atoi(count)) : 4000);
}

INSTANTIATE_TEST_SUITE_P(Registered, MutatedClasses, testing::ValuesIn(CreatableClasses()),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });
INSTANTIATE_TEST_SUITE_P(Registered, MutatedClassesSoak, testing::ValuesIn(CreatableClasses()),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });

}  // namespace
}  // namespace test
