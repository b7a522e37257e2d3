#include <memory>
#include <string>

#include "bench/Bench.h"
#include "buttons/UnitQV7SkinButton.h"
#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/stdctrls/CheckBox.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/FormFiles.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"

namespace {

using namespace qv7skin;

constexpr int Panels = 50;
constexpr int ControlsOnPanel = 19;  // With the panel itself a thousand in all.

// --- the same form, made by a program

template <class Control>
Control* Add(TForm& form, TWinControl& parent, const wchar_t* name, int number, const TRect& bounds) {
    auto* control = new Control(&form);
    control->SetName(name + IntToStr(number));
    control->SetParent(&parent);
    control->SetBoundsRect(bounds);
    return control;
}

void AddControl(TForm& form, TWinControl& panel, int number, int place) {
    const TRect bounds = TRect::OfSize(8 + place % 5 * 90, 8 + place / 5 * 30, 80, 25);
    const String caption = L"Caption " + IntToStr(number);
    switch (place % 4) {
        case 0:
            return Add<TLabel>(form, panel, L"Label", number, bounds)->SetCaption(caption);
        case 1:
            return Add<TEdit>(form, panel, L"Edit", number, bounds)->SetText(caption);
        case 2:
            return Add<TCheckBox>(form, panel, L"CheckBox", number, bounds)->SetCaption(caption);
        default:
            return Add<TQV7SkinButton>(form, panel, L"Button", number, bounds)->SetCaption(caption);
    }
}

std::unique_ptr<TForm> MakeForm() {
    auto form = std::make_unique<TForm>(nullptr);
    form->SetName(L"BenchForm");
    form->SetBounds(0, 0, 800, 600);
    for (int i = 0; i < Panels; ++i) {
        auto* panel = Add<TPanel>(*form, *form, L"Panel", i, TRect::OfSize(i * 4, i * 4, 480, 140));
        for (int j = 0; j < ControlsOnPanel; ++j)
            AddControl(*form, *panel, i * ControlsOnPanel + j, j);
    }
    return form;
}

// --- the form, read

void Build(const TFormDocument& document) {
    TForm form(nullptr);
    TReader(document).ReadRootComponent(&form);
    bench::Use(&form);
}

const bench::Suite Streaming("form files", [](bench::Runner& runner) {
    const std::string whole = "form of 1,000 controls";
    RegisterStandardClasses();
    Register();
    const auto form = MakeForm();
    const TFormDocument document = TWriter().WriteRootComponent(*form);
    const auto text = FormToBytes(document, TFormFormat::Text);
    const auto binary = FormToBytes(document, TFormFormat::Binary);
    form->SetName({});
    const auto make = [] { bench::Use(MakeForm().get()); };

    runner.Row(
        whole + ": text parsed and built", "made in code", {.Ratio = 2.0}, [&] { Build(ParseForm(text)); },
        make);
    runner.Row(
        whole + ": binary parsed and built", "made in code", {.Ratio = 2.0},
        [&] { Build(ParseForm(binary)); }, make);
    runner.Row(
        whole + ": text parsed", "made in code", {.Ratio = 1.0},
        [&] {
            const TFormDocument parsed = ParseForm(text);
            bench::Use(&parsed);
        },
        make);
    runner.Row(
        whole + ": binary parsed", "made in code", {.Ratio = 1.0},
        [&] {
            const TFormDocument parsed = ParseForm(binary);
            bench::Use(&parsed);
        },
        make);
    runner.Row(
        whole + ": written as text", "made in code", {.Ratio = 2.0},
        [&] {
            const auto bytes = FormToBytes(TWriter().WriteRootComponent(*form), TFormFormat::Text);
            bench::Use(bytes.data());
        },
        make);
});

}  // namespace
