#include <algorithm>
#include <memory>
#include <set>
#include <sstream>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormFiles.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/package/ClassScene.h"
#include "tests/package/PropertyChanges.h"
#include "tests/support/FormTest.h"

// What holds for form files of every class that is registered, whoever brings it.

namespace test {
namespace {

using namespace vcl;

/// The first line that is not the same in both texts; empty when there is none.
std::string FirstDifference(const std::string& a, const std::string& b) {
    std::istringstream left(a);
    std::istringstream right(b);
    std::string was;
    std::string is;
    while (true) {
        const bool more = static_cast<bool>(std::getline(left, was));
        if (more != static_cast<bool>(std::getline(right, is)))
            return more ? was + " is missing" : is + " is new";
        if (!more) return {};
        if (was != is) return was + " became " + is;
    }
}

std::string FirstDifference(const std::vector<std::string>& a, const std::vector<std::string>& b) {
    const auto [was, is] = std::ranges::mismatch(a, b);
    if (was == a.end() && is == b.end()) return {};
    return (was == a.end() ? "nothing" : *was) + " became " + (is == b.end() ? "nothing" : *is);
}

class FormFilesOfClasses : public FormTest, public testing::WithParamInterface<const TMetaClass*> {
public:
    static void SetUpTestSuite() {
        BeforeSnapshots([] {
            // The system keeps regions of its own for the windows that are shown side by side.
            ClassScene first(TForm::StaticClass());
            ClassScene second(TForm::StaticClass());
            for (TComponent* root : {first.Subject, second.Subject})
                dynamic_cast<TForm&>(*root).Show();
        });
    }

protected:
    static TFormDocument Write(TComponent& root) { return TWriter().WriteRootComponent(root); }
    static std::unique_ptr<TComponent> Read(const TFormDocument& document) {
        std::unique_ptr<TComponent> root(FindClass(document.Root.ClassName).Create(nullptr));
        TReader reader(document);
        reader.OnFindMethod = [](const String& name, TPersistent&, TEventBase& event) {
            event.SetMethodName(name);
            return true;
        };
        reader.ReadRootComponent(root.get());
        return root;
    }
    static TComponent& SubjectOf(TComponent& root) { return ClassScene::SubjectOf(root); }
    static TFormObject& SubjectOf(TFormDocument& document) {
        for (TFormObject& child : document.Root.Children) {
            if (child.Name == L"Subject") return child;
        }
        return document.Root;
    }

    /// Text to component to binary to component to text.
    static void ExpectSameOnTheWayRound(TComponent& root) {
        const TFormDocument written = Write(root);
        const std::string text = FormToText(written);
        const TFormDocument fromText = ParseForm(FormToBytes(written, TFormFormat::Text));
        EXPECT_TRUE(fromText == written);
        const auto second = Read(fromText);
        const TFormDocument again = Write(*second);
        ASSERT_EQ(FirstDifference(text, FormToText(again)), "") << "read from a text";

        const auto binary = FormToBinary(again);
        const TFormDocument fromBinary = ParseFormBinary(binary);
        EXPECT_TRUE(fromBinary == written);
        const auto third = Read(fromBinary);
        const TFormDocument last = Write(*third);
        ASSERT_EQ(FirstDifference(text, FormToText(last)), "") << "read from a binary file";
        EXPECT_TRUE(FormToBinary(last) == binary);
        EXPECT_EQ(FirstDifference(StoredValues(SubjectOf(root)), StoredValues(SubjectOf(*third))), "");
    }

    /// What sizes itself would not keep another size.
    static void KeepSizeOf(TComponent& subject, const PropertyChange& change) {
        const TPublishedProperty* autoSize = subject.ClassType().FindProperty(L"AutoSize");
        if (autoSize && (change.Path == "Width" || change.Path == "Height"))
            autoSize->Set(subject, std::int64_t{0});
    }

    /// Makes the change; false when the component refuses it.
    static bool Apply(const PropertyChange& change, TComponent& subject) {
        try {
            change.Apply(subject);
            return true;
        } catch (const Exception&) {
            return false;
        }
    }

    /// A form as it is after it has been read. What a class decides when it is loaded, whatever the file
    /// says, goes to `FDecided`.
    std::unique_ptr<TComponent> LoadedForm() {
        ClassScene scene(*GetParam());
        // A size that is nobody's own.
        if (auto* control = dynamic_cast<TControl*>(scene.Subject))
            control->SetHeight(control->GetHeight() + 7);
        auto root = Read(Write(*scene.Root));
        const auto before = StoredValues(*scene.Subject);
        const auto after = StoredValues(SubjectOf(*root));
        for (const std::string& value : before) {
            if (std::ranges::find(after, value) == after.end())
                FDecided.insert(value.substr(0, value.find(' ')));
        }
        TComponent& loaded = SubjectOf(*root);
        for (const TPublishedProperty* row : GetParam()->AllProperties()) {
            const TEventBase* event = row->Event(loaded);
            if (event && event->IsAssigned()) FDecided.insert(ToUtf8(row->Name()));
        }
        return root;
    }

    std::set<std::string> FDecided;
};

TEST_P(FormFilesOfClasses, ANewComponentIsWrittenWithoutItsDefaults) {
    ClassScene scene(*GetParam());
    TFormDocument document = Write(*scene.Root);
    const TFormObject& object = SubjectOf(document);
    for (const TPublishedProperty* row : GetParam()->AllProperties()) {
        const TFormProperty* written = object.FindProperty(row->Name());
        const bool isReference =
            row->Kind() == TPropertyKind::Event || row->Kind() == TPropertyKind::Component;
        const auto byDefault = row->DefaultFor(*scene.Subject);
        const bool isDefault = isReference || (byDefault && row->Get(*scene.Subject) == *byDefault);
        if (isDefault) {
            EXPECT_EQ(written, nullptr) << ToUtf8(row->Name());
        }
    }
    ExpectSameOnTheWayRound(*LoadedForm());
}

TEST_P(FormFilesOfClasses, EveryChangedPropertyComesBack) {
    const std::string plain = FormToText(Write(*LoadedForm()));
    const std::size_t count = [&] {
        const auto root = LoadedForm();
        return ChangesOf(SubjectOf(*root), *root).size();
    }();
    std::size_t written = 0;
    for (std::size_t i = 0; i < count && !HasFailure(); ++i) {
        const auto root = LoadedForm();
        TComponent& subject = SubjectOf(*root);
        const auto changes = ChangesOf(subject, *root);
        ASSERT_EQ(changes.size(), count);
        if (FDecided.contains(changes[i].Path)) continue;
        SCOPED_TRACE(changes[i].Path);
        KeepSizeOf(subject, changes[i]);
        if (!Apply(changes[i], subject)) continue;
        if (FormToText(Write(*root)) != plain) ++written;
        ExpectSameOnTheWayRound(*root);
    }
    EXPECT_GT(written, count / 2);
}

TEST_P(FormFilesOfClasses, AllPropertiesChangedAtOnceComeBack) {
    const auto root = LoadedForm();
    TComponent& subject = SubjectOf(*root);
    for (const PropertyChange& change : ChangesOf(subject, *root)) {
        // The last value of each property stays.
        if (!FDecided.contains(change.Path)) Apply(change, subject);
    }
    ExpectSameOnTheWayRound(*root);
}

INSTANTIATE_TEST_SUITE_P(Registered, FormFilesOfClasses, testing::ValuesIn(CreatableClasses()),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });

}  // namespace
}  // namespace test
