#include <array>
#include <vector>

#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "indicators/UnitQV7SkinGauges.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Timer.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr int FirstColumn = 134;
constexpr int ColumnWidth = 124;
constexpr std::array Percentages{0, 1, 42, 99, 100};

struct TKindRow {
    TQV7SkinGaugeKind Kind;
    const wchar_t* Name;
    TSize Size;
    int Top;
};
constexpr TKindRow KindRows[] = {
    {gkHorizontalBar, L"Balken, liegend", {104, 24}, 74},
    {gkVerticalBar, L"Balken, stehend", {44, 92}, 112},
    {gkPie, L"Torte", {84, 84}, 218},
    {gkNeedle, L"Zeiger", {104, 56}, 316},
    {gkText, L"Nur Text", {104, 24}, 386},
};
constexpr int RunningTop = 464;

/// Gauges of every kind at several percentages, and some that run.
class TGaugesPage : public TGalleryPage {
public:
    explicit TGaugesPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        for (const TKindRow& row : KindRows)
            for (std::size_t i = 0; i < Percentages.size(); ++i)
                AddStill(row, static_cast<int>(i), Percentages[i]);
        AddRunning();
        FTimer = new TTimer(this);
        FTimer->SetInterval(60);
        FTimer->OnTimer = {this, &TGaugesPage::Step};
    }

    void PrepareShot(int) override {
        FTimer->SetEnabled(false);
        for (TQV7SkinGauge* gauge : FRunning)
            gauge->SetProgress(gauge->GetMaxValue() * 67 / 100);
        ShowFile();
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        DrawPartHeading(16, L"Alle Arten bei 0, 1, 42, 99 und 100 Prozent");
        for (std::size_t i = 0; i < Percentages.size(); ++i)
            DrawNote(canvas, TRect::OfSize(ColumnLeft(static_cast<int>(i)), 50, 104, 16),
                     IntToStr(Percentages[i]) + L" %", DT_CENTER);
        for (const TKindRow& row : KindRows)
            DrawNote(canvas,
                     TRect::OfSize(Margin, row.Top + row.Size.Height / 2 - 7, FirstColumn - Margin - 6, 16),
                     row.Name);
        DrawPartHeading(RunningTop - 34, L"In Bewegung");
        int left = Margin;
        for (const wchar_t* note : {L"Wert und Ende", L"eigener Text", L"ohne Text", L"ohne Rand"}) {
            DrawNote(canvas, TRect::OfSize(left, RunningTop + 94, 168, 16), note, DT_CENTER);
            left += 181;
        }
    }

private:
    static int ColumnLeft(int column) { return FirstColumn + column * ColumnWidth; }

    TQV7SkinGauge* Add(TQV7SkinGaugeKind kind, const TRect& bounds) {
        auto* gauge = new TQV7SkinGauge(this);
        gauge->SetKind(kind);
        gauge->SetBoundsRect(bounds);
        gauge->GetFont().SetName(L"Tahoma");
        gauge->SetParent(this);
        return gauge;
    }

    void AddStill(const TKindRow& row, int column, int percent) {
        const int left = ColumnLeft(column) + (104 - row.Size.Width) / 2;
        Add(row.Kind, TRect::OfSize(left, row.Top, row.Size.Width, row.Size.Height))->SetProgress(percent);
    }

    void AddRunning() {
        TQV7SkinGauge* value = Add(gkHorizontalBar, TRect::OfSize(Margin, RunningTop + 30, 168, 26));
        value->SetTextKind(gtkProgress);
        value->SetMaxValue(250);
        FFile = Add(gkHorizontalBar, TRect::OfSize(Margin + 181, RunningTop + 30, 168, 26));
        FFile->SetTextKind(gtkText);
        FFile->SetForeColor(0x00800000);
        TQV7SkinGauge* pie = Add(gkPie, TRect::OfSize(Margin + 2 * 181 + 42, RunningTop, 84, 84));
        pie->SetShowText(false);
        pie->SetForeColor(GetQV7SkinColorLinkText());
        pie->SetBackColor(GetQV7SkinColorBackground());
        pie->SetBorderStyle(bsNone);
        TQV7SkinGauge* needle = Add(gkNeedle, TRect::OfSize(Margin + 3 * 181 + 20, RunningTop + 8, 128, 66));
        needle->SetBorderStyle(bsNone);
        needle->SetShowText(false);
        needle->SetBackColor(GetQV7SkinColorBackground());
        FRunning = {value, FFile, pie, needle};
    }

    void Step(TObject*) {
        for (TQV7SkinGauge* gauge : FRunning) {
            if (gauge->GetProgress() == gauge->GetMaxValue())
                gauge->SetProgress(0);
            else
                gauge->AddProgress(gauge->GetMaxValue() / 100);
        }
        ShowFile();
    }

    void ShowFile() {
        FFile->SetText(Format(L"Datei %d von 7", std::min(FFile->GetProgress() * 7 / 100 + 1, 7)));
    }

    std::vector<TQV7SkinGauge*> FRunning;
    TQV7SkinGauge* FFile = nullptr;
    TTimer* FTimer;
};

}  // namespace

TGalleryPage* CreateGaugesPage(TComponent* owner) {
    return new TGaugesPage(owner);
}

}  // namespace gallery
