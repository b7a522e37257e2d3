#include "inputs/UnitQV7SkinComboBox.h"
#include "inputs/UnitQV7SkinDateTimePicker.h"
#include "inputs/UnitQV7SkinTreeComboBox.h"
#include "tests/inputs/InputsTest.h"
#include "tests/support/CalendarFonts.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;

/// A drop-down of one kind on a form of its own.
class Scene {
public:
    virtual ~Scene() = default;
    virtual void Put(TForm& form) = 0;
    virtual void Open() = 0;
    virtual void Close() = 0;
    [[nodiscard]] virtual bool IsOpen() = 0;

protected:
    template <class Control>
    static Control* Make(TForm& form) {
        auto* control = new Control(&form);
        control->SetBounds(10, 10, 120, 25);
        control->SetParent(&form);
        return control;
    }
};

class ListScene : public Scene {
public:
    void Put(TForm& form) override {
        FBox = Make<TQV7SkinComboBox>(form);
        FBox->GetItems().Add(L"eins");
        FBox->CreateComboBox();
    }
    void Open() override { FBox->GetComboBox()->SetDroppedDown(true); }
    void Close() override { FBox->GetComboBox()->SetDroppedDown(false); }
    bool IsOpen() override { return FBox->GetComboBox()->GetDroppedDown(); }

private:
    TQV7SkinComboBox* FBox = nullptr;
};

class TreeScene : public Scene {
public:
    void Put(TForm& form) override {
        FBox = Make<TQV7SkinTreeComboBox>(form);
        FBox->GetTreeItems().AddChild(FBox->GetTreeItems().Add(nullptr, L"eins"), L"zwei");
    }
    void Open() override { FBox->GetComboBox()->SetDroppedDown(true); }
    void Close() override { FBox->GetComboBox()->SetDroppedDown(false); }
    bool IsOpen() override { return FBox->GetComboBox()->GetDroppedDown(); }

private:
    TQV7SkinTreeComboBox* FBox = nullptr;
};

class FormScene : public Scene {
public:
    void Put(TForm& form) override {
        FBox = Make<TQV7SkinComboBoxCustomDropDown>(form);
        FBox->CreateParts();
        FBox->SetDropDownForm(new TQV7SkinPopupForm(&form));
    }
    void Open() override { FBox->SetDroppedDown(true); }
    void Close() override { FBox->GetDropDownForm()->Close(); }
    bool IsOpen() override { return FBox->GetDroppedDown() && FBox->GetDropDownForm()->GetVisible(); }

private:
    TQV7SkinComboBoxCustomDropDown* FBox = nullptr;
};

class CalendarScene : public Scene {
public:
    void Put(TForm& form) override {
        FPicker = Make<TQV7SkinDateTimePicker>(form);
        FPicker->CreateParts();
    }
    void Open() override { FPicker->SetDroppedDown(true); }
    void Close() override { FPicker->GetCalendarForm()->Close(); }
    bool IsOpen() override { return FPicker->GetDroppedDown() && FPicker->GetCalendarForm()->GetVisible(); }

private:
    TQV7SkinDateTimePicker* FPicker = nullptr;
};

template <class Kind>
std::unique_ptr<Scene> New() {
    return std::make_unique<Kind>();
}

struct Kind {
    const char* Name;
    std::unique_ptr<Scene> (*Make)();
};
void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.Name;
}
const Kind Kinds[] = {{"List", &New<ListScene>},
                      {"Tree", &New<TreeScene>},
                      {"Form", &New<FormScene>},
                      {"Calendar", &New<CalendarScene>}};

class DropDownRounds : public InputsTest, public testing::WithParamInterface<Kind> {
protected:
    /// Opens and closes one drop-down again and again.
    static void OpenAndClose(int rounds) {
        TForm form(nullptr);
        const std::unique_ptr<Scene> scene = Put(form);
        for (int round = 0; round < rounds; ++round) {
            scene->Open();
            ASSERT_TRUE(scene->IsOpen());
            scene->Close();
            ASSERT_FALSE(scene->IsOpen());
        }
    }
    /// Destroys the form of an open drop-down, which owns it, again and again.
    static void LoseTheOwner(int rounds) {
        for (int round = 0; round < rounds; ++round) {
            auto* form = new TForm(nullptr);
            const std::unique_ptr<Scene> scene = Put(*form);
            scene->Open();
            ASSERT_TRUE(scene->IsOpen());
            form->Free();
            test::PumpAll();
        }
    }

private:
    static std::unique_ptr<Scene> Put(TForm& form) {
        std::unique_ptr<Scene> scene = GetParam().Make();
        form.SetBorderStyle(bsNone);
        form.SetBounds(300, 300, 200, 60);
        scene->Put(form);
        form.Show();
        return scene;
    }
    test::CalendarFonts FFonts;
};

TEST_P(DropDownRounds, OfOpeningLeaveNothingBehind) {
    OpenAndClose(50);
}

TEST_P(DropDownRounds, OfLosingTheOwnerLeaveNothingBehind) {
    LoseTheOwner(25);
}

const auto NameOf = [](const testing::TestParamInfo<Kind>& info) { return info.param.Name; };
INSTANTIATE_TEST_SUITE_P(Of, DropDownRounds, testing::ValuesIn(Kinds), NameOf);

/// The same a thousand times.
class DropDownRoundsSoak : public DropDownRounds {};

TEST_P(DropDownRoundsSoak, OfOpeningLeaveNothingBehind) {
    OpenAndClose(1000);
}

TEST_P(DropDownRoundsSoak, OfLosingTheOwnerLeaveNothingBehind) {
    LoseTheOwner(1000);
}

INSTANTIATE_TEST_SUITE_P(Of, DropDownRoundsSoak, testing::ValuesIn(Kinds), NameOf);

}  // namespace
