// The whole way with nothing but mouse and keys, in the dialogs of the system too: every class of the
// package's palette page on a form, its properties set, the form saved, read again and run.

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "platform/vcl/forms/Screen.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/support/Pump.h"
#include "tests/support/SystemDialogs.h"

namespace designer {
namespace {

/// A value other than the line's that a user might type; none for lines that are of no use here.
std::optional<String> OtherValue(const TPropertyList& list, const TPropertyLine& line) {
    static const std::set<String> placing{L"Name",  L"Left",    L"Top",      L"Width",     L"Height",
                                          L"Align", L"Visible", L"AutoSize", L"ParentFont"};
    if (line.Depth > 0 || line.IsReadOnly || placing.contains(line.Name)) return std::nullopt;
    switch (line.Row->Kind()) {
        case TPropertyKind::String:
            // These hold their value as caption, and take only such texts for good.
            if (line.Name == L"Caption" && (list.Find(L"Value") || list.Find(L"Date"))) return std::nullopt;
            return L"Wert für " + line.Name;
        case TPropertyKind::Boolean:
        case TPropertyKind::Enumeration:
            for (const String& choice : list.Choices(line))
                if (choice != line.Text) return choice;
            return std::nullopt;
        case TPropertyKind::Integer:
            return line.Name == L"Tag" ? std::optional<String>(L"17") : std::nullopt;
        default:
            return std::nullopt;
    }
}

class EndToEndTest : public RealDialogsTest {
protected:
    /// Three properties of what is chosen, of different kinds where there are.
    std::vector<std::pair<String, String>> ThreeValues() {
        const TPropertyList list = Lines();
        std::vector<std::pair<String, String>> values;
        std::set<TPropertyKind> kinds;
        for (const bool isSecondRound : {false, true}) {
            for (const TPropertyLine& line : list.Lines()) {
                const auto value = OtherValue(list, line);
                const auto taken = [&](const auto& entry) { return entry.first == line.Path; };
                if (!value || values.size() == 3 || std::ranges::any_of(values, taken)) continue;
                if (kinds.insert(line.Row->Kind()).second || isSecondRound)
                    values.emplace_back(line.Path, *value);
            }
        }
        return values;
    }
    /// Presses the keys of a command and types the name of the file that its dialog asks for.
    void TypeFileName(WORD key, const String& name) {
        const test::SystemDialogs user([&name](test::SystemDialogUser& dialog) {
            dialog.WaitForDialog(L"Formular");
            dialog.TypeInstead(name);
            dialog.KeyPress(VK_RETURN);
            dialog.WaitUntilLeft();
        });
        Input.Chord({VK_CONTROL}, key);
    }
    [[nodiscard]] POINT OnForm(int x, int y) {
        POINT point{x, y};
        ::ClientToScreen(FormWindow(), &point);
        return point;
    }
};

TEST_F(EndToEndTest, EveryClassOfThePackageIsPlacedSetSavedAndRun) {
    const String file = Dir.File(L"all.dfm");
    for (const auto& [path, value] :
         {std::pair{L"BorderStyle", L"bsNone"}, {L"ClientHeight", L"440"}, {L"ClientWidth", L"640"}})
        TypeValue(path, value);
    PressTool(L"QV7", L"");
    const TClassList classes = Window->Strip().Classes();
    ASSERT_EQ(classes.size(), 22u);

    std::map<String, std::vector<std::pair<String, String>>> expected;
    for (std::size_t i = 0; i < classes.size(); ++i) {
        PressTool(L"QV7", classes[i]->ClassName());
        ASSERT_EQ(Window->Surface().GetTool(), classes[i]);
        const int x = 48 + static_cast<int>(i % 6) * 96;
        const int y = 80 + static_cast<int>(i / 6) * 80;
        Input.Drag(OnForm(x, y), OnForm(x + 64, y + 40));
        ASSERT_EQ(Document().Selection().Items().size(), 1u) << ToUtf8(classes[i]->ClassName());
        TComponent* made = Document().Selection().Leader();
        ASSERT_EQ(&made->ClassType(), classes[i]);
        const String name = made->GetName();
        expected[name] = ThreeValues();
        ASSERT_EQ(expected[name].size(), 3u) << ToUtf8(name);
        for (const auto& [path, value] : expected[name]) {
            TypeValue(path, value);
            ASSERT_EQ(Document().Selection().Leader()->GetName(), name);
            EXPECT_EQ(Lines().Find(path)->Text, value) << ToUtf8(name + L"." + path);
        }
    }
    EXPECT_EQ(expected.size(), classes.size());

    TypeFileName('S', file);
    EXPECT_EQ(Window->File().Name(), file);
    const std::string saved = Dir.Read(L"all.dfm");
    EXPECT_EQ(saved, Document().Text());
    Input.Chord({VK_MENU}, VK_F4);
    EXPECT_FALSE(Window->GetVisible());

    Window = MakeWindow();
    TypeFileName('O', file);
    EXPECT_EQ(Document().Text(), saved);
    for (const auto& [name, values] : expected) {
        TComponent* component = Document().Root().FindComponent(name);
        ASSERT_TRUE(component) << ToUtf8(name);
        Document().Selection().SetOnly(component);
        for (const auto& [path, value] : values)
            EXPECT_EQ(Lines().Find(path)->Text, value) << ToUtf8(name + L"." + path);
    }
    Input.Chord({VK_CONTROL}, 'S');
    EXPECT_EQ(Dir.Read(L"all.dfm"), saved);

    bool ran = false;
    test::When([&] { return Screen().GetActiveForm() && Screen().GetActiveForm() != Window.get(); },
               [&] {
                   TCustomForm& preview = *Screen().GetActiveForm();
                   ran = preview.GetVisible() && !preview.IsInState(csDesigning);
                   for (const auto& [name, values] : expected)
                       EXPECT_TRUE(preview.FindComponent(name)) << ToUtf8(name);
                   Input.Chord({VK_MENU}, VK_F4);
               });
    Input.KeyPress(VK_F9);
    EXPECT_TRUE(ran);
}

}  // namespace
}  // namespace designer
