#include "inputs/UnitQV7SkinDateTimePicker.h"

#include <algorithm>

#include "inputs/InputColors.h"
#include "platform/tms/CurvyRows.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DateFormats.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Label.h"
#include "skin/UnitQV7SkinConsts.h"
#include "skin/surfaces/Loaders.h"

namespace qv7skin {
namespace {

constexpr int ButtonWidth = 33;
constexpr int ButtonRight = 2;
constexpr int LabelLeft = 4;
constexpr wchar_t Enter = 13;
constexpr TColor TextColors[] = {InputText, 0x00AAAAAA};

void ReplaceAll(String& text, StringView what, StringView by) {
    if (what.empty()) return;
    for (std::size_t at = text.find(what); at != String::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

void ReplaceFirst(String& text, StringView what, StringView by) {
    if (const std::size_t at = text.find(what); at != String::npos) text.replace(at, what.size(), by);
}

/// Exchanges a letter in either case.
void ReplaceLetter(String& text, wchar_t lower, wchar_t by) {
    const auto upper = static_cast<wchar_t>(lower - L'a' + L'A');
    std::ranges::replace_if(
        text, [=](wchar_t c) { return c == lower || c == upper; }, by);
}

TSkinStringId PatternOf(TDateOrder order) {
    switch (order) {
        case TDateOrder::DayMonthYear:
            return resDateFormatDayFirst;
        case TDateOrder::YearMonthDay:
            return resDateFormatYearFirst;
        default:
            return resDateFormatMonthFirst;
    }
}

/// The picture in light greys, as of something that does not work now.
std::unique_ptr<TBitmap> PaleCopy(TBitmap& bitmap) {
    auto pale = std::make_unique<TBitmap>(bitmap.GetWidth(), bitmap.GetHeight(), pf24bit);
    for (int y = 0; y < bitmap.GetHeight(); ++y) {
        for (int x = 0; x < bitmap.GetWidth(); ++x) {
            const TColor color = bitmap.GetCanvas().GetPixel(x, y);
            const unsigned light =
                (30 * GetRValue(color) + 59 * GetGValue(color) + 11 * GetBValue(color)) / 100;
            const unsigned grey = (light + 255) / 2;
            pale->GetCanvas().SetPixel(x, y, RGB(grey, grey, grey));
        }
    }
    return pale;
}

/// Letters for the day of the week, as many as the longest short name has.
String DayNameMask() {
    std::size_t longest = 0;
    for (const String& name : FormatSettings().ShortDayNames)
        longest = std::max(longest, name.size());
    return longest == 3 ? L"LLl" : String(longest, L'L');
}

}  // namespace

const TMetaClass& TCustomQV7SkinDateTimePicker::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomQV7SkinDateTimePicker>(
        L"TCustomQV7SkinDateTimePicker", TCustomQV7SkinComboBoxCustomDropDown::StaticClass());
    return meta;
}

TCustomQV7SkinDateTimePicker::TCustomQV7SkinDateTimePicker(TComponent* AOwner)
    : TCustomQV7SkinComboBoxCustomDropDown(AOwner) {
    // A name is no date.
    ControlStyle.Exclude(csSetCaption);
}

TCustomQV7SkinDateTimePicker::~TCustomQV7SkinDateTimePicker() {
    // The form must not tell a picker that is half gone.
    SetDropDownForm(nullptr);
}

// --- formats

String TCustomQV7SkinDateTimePicker::GetDateFormat() const {
    const TFormatSettings& settings = FormatSettings();
    String pattern = LoadSkinString(PatternOf(DateOrderOf(settings.ShortDateFormat)));
    ReplaceAll(pattern, LoadSkinString(resDateFormatSeparator), {&settings.DateSeparator, 1});
    return LoadSkinString(resDateFormatWeekday) + LoadSkinString(resDateFormatWeekdayComma) + L" " + pattern;
}

String TCustomQV7SkinDateTimePicker::GetDateEditMask() const {
    String mask = GetDateFormat();
    ReplaceFirst(mask, LoadSkinString(resDateFormatWeekday), DayNameMask());
    ReplaceLetter(mask, L'd', L'9');
    ReplaceLetter(mask, L'm', L'9');
    ReplaceLetter(mask, L'y', L'0');
    ReplaceFirst(mask, L" ", L" !");
    return mask + L";1;_";
}

String TCustomQV7SkinDateTimePicker::GetFormattedDate() const {
    return FormatDateTime(GetDateFormat(), FDate);
}

// --- date and text

void TCustomQV7SkinDateTimePicker::SetDate(TDate Value) {
    FDate = Value;
    ShowDate();
    if (GetDroppedDown() && FForm) FForm->MonthCalendar->SetDate(Value);
    OnDateChange(this);
}

void TCustomQV7SkinDateTimePicker::ShowDate() {
    SetText(GetFormattedDate());
    FTextChanged = false;
}

void TCustomQV7SkinDateTimePicker::SetTextGrayed(bool Value) {
    if (Value == FTextGrayed) return;
    FTextGrayed = Value;
    if (GetLabel()) GetLabel()->GetFont().SetColor(TextColors[Value]);
}

void TCustomQV7SkinDateTimePicker::ReadDateFromInput() {
    if (!GetLabel()) return;
    FTextChanged = false;
    const String text = GetLabel()->GetCaption();
    const std::size_t comma = text.find(L',');
    const StringView date = StringView(text).substr(comma == String::npos ? 0 : comma + 1);
    if (const std::optional<TDate> read = TryStrToDate(Trim(date)))
        SetDate(*read);
    else
        ShowDate();
}

void TCustomQV7SkinDateTimePicker::DoEditExit(TObject*) {
    if (FTextChanged) ReadDateFromInput();
}

void TCustomQV7SkinDateTimePicker::DoEditKeyPress(TObject*, wchar_t& Key) {
    if (Key == Enter) ReadDateFromInput();
}

void TCustomQV7SkinDateTimePicker::DoEditChange(TObject*) {
    FTextChanged = true;
}

// --- parts

void TCustomQV7SkinDateTimePicker::CreateButton() {
    if (IsInState(csDesigning)) return;
    FButtonBitmap = CreateBmp(L"DATETIMEPICKERBUTTON");
    MakeButton(ButtonWidth, ButtonRight);
}

void TCustomQV7SkinDateTimePicker::CreateEdit() {
    if (IsInState(csDesigning)) return;
    MakeLabel(LabelLeft);
    GetLabel()->GetFont().SetColor(TextColors[FTextGrayed]);
    FTextChanged = false;
}

void TCustomQV7SkinDateTimePicker::CreateForm() {
    if (IsInState(csDesigning)) return;
    FForm = std::make_unique<TfrmQV7SkinDateTimePickerDropDown>(nullptr);
    SetDropDownForm(FForm.get());
}

/// The bitmap stands in the middle of the white button.
void TCustomQV7SkinDateTimePicker::DoButtonPaint(TObject*, TBitmap* Bitmap) {
    const TRect client = GetButton()->GetClientRect();
    TRect rect = client;
    rect.Inflate(1, 0);
    TCanvas& canvas = Bitmap->GetCanvas();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(InputGround);
    canvas.FillRect(rect);
    canvas.FrameRect(rect);
    if (!GetEnabled() && !FPaleButtonBitmap) FPaleButtonBitmap = PaleCopy(*FButtonBitmap);
    TBitmap* picture = GetEnabled() ? FButtonBitmap.get() : FPaleButtonBitmap.get();
    canvas.Draw((client.Width() - picture->GetWidth()) / 2, (client.Height() - picture->GetHeight()) / 2,
                picture);
}

// --- opening and closing

void TCustomQV7SkinDateTimePicker::DoButtonMouseUp(TObject*, TMouseButton, TShiftState, int, int) {
    (void)ToggleByRelease();
}

void TCustomQV7SkinDateTimePicker::PrepareDropDown() {
    const TLifeGuard guard(*this);
    if (FTextChanged) ReadDateFromInput();
    if (!guard.IsAlive() || !FForm) return;
    // The calendar lies above the form on which the picker stands.
    auto* form = dynamic_cast<TCustomForm*>(GetParentForm(this));
    if (FForm->GetAttachedTo() != form) FForm->SetAttachedTo(form);
    FForm->MonthCalendar->SetDate(FDate);
}

void TCustomQV7SkinDateTimePicker::DropDownClosed() {
    if (FForm && !FForm->Cancelled) SetDate(FForm->MonthCalendar->GetDate());
}

const TMetaClass& TQV7SkinDateTimePicker::StaticClass() {
    using C = TQV7SkinDateTimePicker;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinDateTimePicker", TCustomQV7SkinDateTimePicker::StaticClass())
            .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
            .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
            .Property(L"Align", &C::GetAlign, &C::SetAlign, alNone)
            .With(AnchorsRow)
            .Property(L"Date", &C::GetDate, &C::SetDate, 0)
            .Property(L"DateFormat", &C::GetDateFormat, nullptr)
            .Property(L"EditMask", &C::GetDateEditMask, nullptr)
            .Event(L"OnDateChange", &C::OnDateChange)
            .Event(L"OnDropDown", &C::OnDropDown)
            .Event(L"OnCloseUp", &C::OnCloseUp);
    return meta;
}

}  // namespace qv7skin
