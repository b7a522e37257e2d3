#include "platform/vcl/stdctrls/Memo.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"

namespace vcl {
namespace {

constexpr StringView LineBreak = L"\r\n";

/// The lines of a memo. The text itself is the only place where they are kept.
class TMemoLines final : public TStrings {
public:
    explicit TMemoLines(TCustomMemo& memo) : FMemo(memo) {}

    [[nodiscard]] int GetCount() const override {
        return static_cast<int>(SplitLines(FMemo.GetText()).size());
    }
    [[nodiscard]] String Get(int index) const override {
        std::vector<String> lines = SplitLines(FMemo.GetText());
        CheckIndex(index, lines.size());
        return std::move(lines[static_cast<std::size_t>(index)]);
    }
    void Put(int index, const String& text) override {
        const TLines lines(FMemo.GetText());
        CheckIndex(index, lines.Count());
        const bool isLast = static_cast<std::size_t>(index) + 1 == lines.Count();
        Replace(lines.Start(index), lines.End(index), isLast && lines.EndsOpen() ? Last(text) : text);
    }
    /// Lines have no objects.
    [[nodiscard]] TObject* GetObject(int index) const override {
        CheckIndex(index, static_cast<std::size_t>(GetCount()));
        return nullptr;
    }
    void PutObject(int, TObject*) override {}
    void InsertObject(int index, const String& text, TObject*) override {
        const TLines lines(FMemo.GetText());
        CheckIndex(index, lines.Count() + 1);
        if (static_cast<std::size_t>(index) < lines.Count())
            Replace(lines.Start(index), lines.Start(index), text + String(LineBreak));
        else
            Replace(lines.Length(), lines.Length(),
                    (lines.EndsOpen() ? String(LineBreak) : String()) + Last(text));
    }
    void Delete(int index) override {
        const TLines lines(FMemo.GetText());
        CheckIndex(index, lines.Count());
        const bool isLast = static_cast<std::size_t>(index) + 1 == lines.Count();
        // The last line goes together with the break before it.
        const std::size_t start = isLast && index > 0 ? lines.End(index - 1) : lines.Start(index);
        Replace(start, isLast ? lines.Length() : lines.Start(index + 1), String());
    }
    void Clear() override { FMemo.Clear(); }
    /// In one change, so that the host hears of it once, and may free the memo then.
    void Assign(const TPersistent* source) override {
        const auto* lines = dynamic_cast<const TStrings*>(source);
        if (!lines) return TStrings::Assign(source);
        String all;
        const int count = lines->GetCount();
        for (int i = 0; i < count; ++i) {
            const String line = lines->Get(i);
            const bool isLast = i + 1 == count;
            all += isLast ? Last(line) : line + String(LineBreak);
        }
        FMemo.SetText(all);
    }

private:
    /// Where the lines of a text begin and end.
    class TLines {
    public:
        explicit TLines(const String& text) : FLength(text.size()) {
            std::size_t start = 0;
            while (start < text.size()) {
                const std::size_t end = std::min(text.find_first_of(L"\r\n", start), text.size());
                FPlaces.push_back({start, end});
                FEndsOpen = end == text.size();
                start = end + (text.compare(end, 2, LineBreak) == 0 ? 2 : 1);
            }
        }
        [[nodiscard]] std::size_t Count() const { return FPlaces.size(); }
        [[nodiscard]] std::size_t Start(int line) const {
            return FPlaces[static_cast<std::size_t>(line)].first;
        }
        [[nodiscard]] std::size_t End(int line) const {
            return FPlaces[static_cast<std::size_t>(line)].second;
        }
        [[nodiscard]] std::size_t Length() const { return FLength; }
        /// True when the last line has no break after it.
        [[nodiscard]] bool EndsOpen() const { return FEndsOpen; }

    private:
        std::vector<std::pair<std::size_t, std::size_t>> FPlaces;
        std::size_t FLength;
        bool FEndsOpen = false;
    };

    /// A last line without text is a line by the break after it only.
    static String Last(const String& text) { return text.empty() ? String(LineBreak) : text; }

    void Replace(std::size_t start, std::size_t end, const String& text) {
        if (FMemo.HandleAllocated()) {
            FMemo.Perform(EM_SETSEL, start, static_cast<LPARAM>(end));
            FMemo.Perform(EM_REPLACESEL, FALSE, text.c_str());
        } else {
            String all = FMemo.GetText();
            all.replace(start, end - start, text);
            FMemo.SetText(all);
        }
    }
    static void CheckIndex(int index, std::size_t limit) {
        if (index < 0 || static_cast<std::size_t>(index) >= limit)
            throw EStringListError(Format(L"List index out of bounds (%d)", index));
    }
    void SetUpdateState(bool updating) override {
        if (!FMemo.HandleAllocated()) return;
        FMemo.Perform(WM_SETREDRAW, !updating);
        if (!updating) FMemo.Invalidate();
    }

    TCustomMemo& FMemo;
};

}  // namespace

const TMetaClass& TCustomMemo::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomMemo>(L"TCustomMemo", TCustomEdit::StaticClass());
    return meta;
}

TCustomMemo::TCustomMemo(TComponent* AOwner)
    : TCustomEdit(AOwner), FLines(std::make_unique<TMemoLines>(*this)) {
    ControlStyle.Exclude(csFixedHeight);
    SetAutoSize(false);
    SetBounds(0, 0, 185, 89);
}

TCustomMemo::~TCustomMemo() = default;

void TCustomMemo::SetScrollBars(TScrollStyle value) {
    if (value == FScrollBars) return;
    FScrollBars = value;
    RecreateWnd();
}

void TCustomMemo::SetWordWrap(bool value) {
    if (value == FWordWrap) return;
    FWordWrap = value;
    RecreateWnd();
}

TPoint TCustomMemo::GetCaretPos() const {
    auto& self = const_cast<TCustomMemo&>(*this);
    const LRESULT line = self.Perform(EM_LINEFROMCHAR, static_cast<WPARAM>(-1));
    const LRESULT start = self.Perform(EM_LINEINDEX, static_cast<WPARAM>(line));
    DWORD caret = 0;
    self.Perform(EM_GETSEL, reinterpret_cast<WPARAM>(&caret));
    return {static_cast<int>(static_cast<LRESULT>(caret) - start), static_cast<int>(line)};
}

void TCustomMemo::SetCaretPos(TPoint value) {
    const LRESULT start = Perform(EM_LINEINDEX, static_cast<WPARAM>(value.Y));
    if (start >= 0) SetSelStart(static_cast<int>(start) + value.X);
}

void TCustomMemo::CreateParams(TCreateParams& params) {
    TCustomEdit::CreateParams(params);
    params.Style |= ES_MULTILINE;
    if (FWordWrap) params.Style &= ~DWORD{ES_AUTOHSCROLL};
    if (FScrollBars == ssHorizontal || FScrollBars == ssBoth) params.Style |= WS_HSCROLL;
    if (FScrollBars == ssVertical || FScrollBars == ssBoth) params.Style |= WS_VSCROLL;
}

void TCustomMemo::Dispatch(TMessage& message) {
    TCustomEdit::Dispatch(message);
    if (message.Msg != WM_GETDLGCODE) return;
    message.Result &= ~LRESULT{DLGC_WANTTAB | DLGC_WANTALLKEYS};
    if (FWantTabs) message.Result |= DLGC_WANTTAB;
    if (FWantReturns) message.Result |= DLGC_WANTALLKEYS;
}

void TCustomMemo::KeyPress(wchar_t& key) {
    TCustomEdit::KeyPress(key);
    if (key == L'\r' && !FWantReturns) key = 0;
}

const TMetaClass& TMemo::StaticClass() {
    using C = TMemo;
    static const TMetaClass meta =
        DefineClass<C>(L"TMemo", TCustomMemo::StaticClass())
            .With(EditorRows)
            .Property(L"Alignment", &C::GetAlignment, &C::SetAlignment, taLeftJustify)
            .Property(L"BorderStyle", &C::GetBorderStyle, &C::SetBorderStyle, bsSingle)
            .Property(L"CharCase", &C::GetCharCase, &C::SetCharCase, ecNormal)
            .Property(L"HideSelection", &C::GetHideSelection, &C::SetHideSelection, true)
            .Property(L"Lines", &C::GetLines, &C::SetLines)
            .Property(L"MaxLength", &C::GetMaxLength, &C::SetMaxLength, 0)
            .Property(L"ReadOnly", &C::GetReadOnly, &C::SetReadOnly, false)
            .Property(L"ScrollBars", &C::GetScrollBars, &C::SetScrollBars, ssNone)
            .Property(L"WantReturns", &C::GetWantReturns, &C::SetWantReturns, true)
            .Property(L"WantTabs", &C::GetWantTabs, &C::SetWantTabs, false)
            .Property(L"WordWrap", &C::GetWordWrap, &C::SetWordWrap, true)
            .With(DragRows)
            .With(MouseRows)
            .With(DragEventRows)
            .With(KeyRows)
            .Event(L"OnChange", &C::OnChange);
    return meta;
}

}  // namespace vcl
