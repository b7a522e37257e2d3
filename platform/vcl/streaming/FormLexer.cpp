#include "platform/vcl/streaming/FormLexer.h"

#include "platform/vcl/streaming/FormNames.h"

#include <charconv>
#include <limits>
#include <string>
#include <utility>

namespace vcl {
namespace {

constexpr std::size_t LongestNumber = 1000;

bool IsDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

/// The value of a hexadecimal digit; -1 for everything else.
int HexValue(wchar_t c) {
    if (IsDigit(c)) return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    return -1;
}

bool IsBlank(wchar_t c) {
    return c == L' ' || (c >= L'\t' && c <= L'\r');
}

}  // namespace

String TFormToken::Description() const {
    switch (Kind) {
        case TFormTokenKind::End:
            return L"the end of the file";
        case TFormTokenKind::String:
            return L"a string";
        default:
            return Format(L"'%s'", Text);
    }
}

TFormLexer::TFormLexer(StringView source, const TFormPlace& place) : FSource(source), FPlace(place) {
    Advance();
}

void TFormLexer::Fail(TFormProblemKind kind, TFormPosition position, String text) const {
    FPlace.Fail(kind, position, std::move(text));
}

TFormPosition TFormLexer::Here() const {
    return {FLine, static_cast<std::uint32_t>(FNext - FLineStart + 1)};
}

void TFormLexer::SkipBlanks() {
    for (; !AtEnd() && IsBlank(FSource[FNext]); ++FNext) {
        const wchar_t c = FSource[FNext];
        if (c == L'\n' || (c == L'\r' && Peek(1) != L'\n')) {
            ++FLine;
            FLineStart = FNext + 1;
        }
    }
}

void TFormLexer::Advance() {
    SkipBlanks();
    FToken.Position = Here();
    const std::size_t start = FNext;
    const wchar_t c = Peek();
    if (AtEnd())
        FToken.Kind = TFormTokenKind::End;
    else if (StartsFormName(c))
        ReadName();
    else if (IsDigit(c) || c == L'$' || (c == L'-' && (IsDigit(Peek(1)) || Peek(1) == L'$')))
        ReadNumber();
    else if (c == L'\'' || c == L'#')
        ReadString();
    else if (StringView(L"=:.,()[]<>{}").find(c) != StringView::npos) {
        FToken.Kind = TFormTokenKind::Symbol;
        ++FNext;
    } else {
        Fail(TFormProblemKind::Syntax, Here(),
             Format(L"Unexpected character %s", c < L' ' ? Format(L"#%d", c) : String(1, c)));
    }
    FToken.Text = FSource.substr(start, FNext - start);
}

bool TFormLexer::IsKeyword(StringView keyword) const {
    if (FToken.Kind != TFormTokenKind::Name || !SameText(FToken.Text, keyword)) return false;
    const std::size_t next = FSource.find_first_not_of(L" \t\r\n\v\f", FNext);
    return next == StringView::npos || FSource[next] != L'=';
}

void TFormLexer::ReadName() {
    FToken.Kind = TFormTokenKind::Name;
    do {
        ++FNext;
        while (ContinuesFormName(Peek()))
            ++FNext;
    } while (Peek() == L'.' && StartsFormName(Peek(1)) && (++FNext, true));
}

bool TFormLexer::SkipDigits() {
    const std::size_t start = FNext;
    while (IsDigit(Peek()))
        ++FNext;
    return FNext > start;
}

bool TFormLexer::SkipNumber(bool& hasFraction) {
    bool valid = SkipDigits();
    if (Peek() == L'.' && IsDigit(Peek(1))) {
        hasFraction = true;
        ++FNext;
        SkipDigits();
    }
    if (Peek() == L'e' || Peek() == L'E') {
        hasFraction = true;
        ++FNext;
        if (Peek() == L'+' || Peek() == L'-') ++FNext;
        valid = SkipDigits() && valid;
    }
    return valid;
}

void TFormLexer::ReadNumber() {
    const std::size_t start = FNext;
    const bool negative = Peek() == L'-';
    if (negative) ++FNext;
    if (Peek() == L'$') return ReadHexadecimal(negative);

    bool fraction = false;
    const bool valid = SkipNumber(fraction);
    const StringView text = FSource.substr(start, FNext - start);
    wchar_t letter = 0;
    if (StringView(L"cdfsCDFS").find(Peek()) != StringView::npos && !AtEnd()) {
        letter = Peek();
        ++FNext;
    }
    if (!valid || ContinuesFormName(Peek()))
        Fail(TFormProblemKind::Syntax, FToken.Position, L"Invalid number");
    const auto tooBig = [&] {
        Fail(TFormProblemKind::OutOfRange, FToken.Position,
             Format(L"Number too big: %s", text.substr(0, 40)));
    };
    if (text.size() > LongestNumber) tooBig();
    if (fraction || letter != 0) {
        const auto value = TextToFormFloat(text, letter);
        if (!value) tooBig();
        FToken.Kind = TFormTokenKind::Float;
        FToken.Float = *value;
        return;
    }
    const std::string digits(text.begin(), text.end());
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), FToken.Integer);
    if (end.ec != std::errc()) tooBig();
    FToken.Kind = TFormTokenKind::Integer;
}

void TFormLexer::ReadHexadecimal(bool negative) {
    std::uint64_t value = 0;
    std::size_t digits = 0;
    for (++FNext; HexValue(Peek()) >= 0; ++FNext, ++digits) {
        if (value >> 60 != 0) Fail(TFormProblemKind::OutOfRange, FToken.Position, L"Number too big");
        value = value << 4 | static_cast<unsigned>(HexValue(Peek()));
    }
    if (digits == 0 || ContinuesFormName(Peek()))
        Fail(TFormProblemKind::Syntax, FToken.Position, L"Invalid number");
    FToken.Kind = TFormTokenKind::Integer;
    FToken.Integer = static_cast<std::int64_t>(negative ? 0 - value : value);
}

void TFormLexer::ReadString() {
    FToken.Kind = TFormTokenKind::String;
    FToken.Value.clear();
    while (true) {
        while (Peek() == L'\'' || Peek() == L'#') {
            if (Peek() == L'#')
                ReadCharacterCode();
            else
                ReadQuoted();
        }
        SkipBlanks();
        if (Peek() != L'+') return;
        ++FNext;
        SkipBlanks();
        if (Peek() != L'\'' && Peek() != L'#')
            Fail(TFormProblemKind::Syntax, Here(), L"A string must follow '+'");
    }
}

void TFormLexer::ReadQuoted() {
    const TFormPosition start = Here();
    while (true) {
        const std::size_t end = FSource.find_first_of(L"'\r\n", FNext + 1);
        if (end == StringView::npos || FSource[end] != L'\'')
            Fail(TFormProblemKind::Truncated, start, L"Unterminated string");
        FToken.Value += FSource.substr(FNext + 1, end - FNext - 1);
        FNext = end + 1;
        if (Peek() != L'\'') return;
        FToken.Value += L'\'';
    }
}

void TFormLexer::ReadCharacterCode() {
    const TFormPosition start = Here();
    ++FNext;
    const bool hexadecimal = Peek() == L'$';
    if (hexadecimal) ++FNext;
    unsigned code = 0;
    std::size_t digits = 0;
    for (; hexadecimal ? HexValue(Peek()) >= 0 : IsDigit(Peek()); ++FNext, ++digits) {
        code = code * (hexadecimal ? 16 : 10) + static_cast<unsigned>(HexValue(Peek()));
        if (code > std::numeric_limits<std::uint16_t>::max())
            Fail(TFormProblemKind::OutOfRange, start, L"Character code too big");
    }
    if (digits == 0) Fail(TFormProblemKind::Syntax, start, L"Invalid character code");
    FToken.Value += static_cast<wchar_t>(code);
}

std::vector<std::byte> TFormLexer::ReadBytes() {
    std::vector<std::byte> bytes;
    const TFormPosition start = FToken.Position;
    const auto nextDigit = [&] {
        SkipBlanks();
        if (AtEnd()) Fail(TFormProblemKind::Truncated, start, L"Unterminated bytes");
        if (Peek() == L'}') return -1;
        const int digit = HexValue(Peek());
        if (digit < 0) Fail(TFormProblemKind::Syntax, Here(), L"Invalid hexadecimal digit");
        ++FNext;
        return digit;
    };
    for (int high = nextDigit(); high >= 0; high = nextDigit()) {
        const int low = nextDigit();
        if (low < 0) Fail(TFormProblemKind::Syntax, Here(), L"A hexadecimal digit is missing");
        bytes.push_back(static_cast<std::byte>(high << 4 | low));
    }
    ++FNext;
    Advance();
    return bytes;
}

}  // namespace vcl
