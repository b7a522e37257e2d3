#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Strings.h"

#include <algorithm>
#include <clocale>
#include <cwchar>

namespace vcl {

/// Walks through one format text.
class TFormatter {
public:
    TFormatter(StringView format, std::span<const TFormatArg> args) : FFormat(format), FArgs(args) {}

    String Run() {
        while (FAt < FFormat.size()) {
            const std::size_t sign = FFormat.find(L'%', FAt);
            FResult += FFormat.substr(FAt, sign - FAt);
            if (sign == StringView::npos) break;
            FAt = sign;
            Place();
        }
        return std::move(FResult);
    }

private:
    /// One place, from its percent sign to its letter.
    void Place() {
        const std::size_t start = FAt++;
        const StringView options = Take(L"-+ #0123456789.");
        // Widths of C types stand in some texts; each argument knows its own.
        if (FFormat.substr(FAt).starts_with(L"I64")) FAt += 3;
        Take(L"hljztw");
        if (FAt >= FFormat.size()) Misfit(FFormat.substr(start));
        const wchar_t letter = FFormat[FAt++];
        if (letter == L'%') {
            FResult += L'%';
            return;
        }
        if (FNext >= FArgs.size() || !Append(String(options), letter, FArgs[FNext++]))
            Misfit(FFormat.substr(start, FAt - start));
    }

    /// Moves on behind what consists of these characters, and returns it.
    StringView Take(StringView characters) {
        const std::size_t start = FAt;
        FAt = std::min(FFormat.find_first_not_of(characters, FAt), FFormat.size());
        return FFormat.substr(start, FAt - start);
    }

    bool Append(const String& options, wchar_t letter, const TFormatArg& arg) {
        const auto* integer = std::get_if<TFormatArg::TInteger>(&arg.FValue);
        switch (letter) {
            case L'd':
            case L'i':
                return integer && Print(options, L"I64d", integer->Signed);
            case L'u':
            case L'x':
            case L'X':
                return integer && Print(options, String(L"I64") + letter, integer->Unsigned);
            case L'c':
                return integer && Print(options, L"c", static_cast<int>(integer->Signed));
            case L's': {
                const auto* text = std::get_if<StringView>(&arg.FValue);
                return text && Print(options, L"s", String(*text).c_str());
            }
            case L'f':
            case L'e':
            case L'g': {
                const auto* number = std::get_if<double>(&arg.FValue);
                return number && PrintFloat(options, letter, *number);
            }
            default:
                return false;
        }
    }

    /// Hands the place to the C library of the system, whose `s` and `c` take wide texts.
    template <class T>
    bool Print(const String& options, const String& conversion, T value) {
        const String place = L'%' + options + conversion;
        const int length = _scwprintf(place.c_str(), value);
        if (length < 0) return false;
        String text(static_cast<std::size_t>(length), L'\0');
        _snwprintf(text.data(), text.size() + 1, place.c_str(), value);
        FResult += text;
        return true;
    }

    /// The same for numbers with a fraction. Their decimal sign is that of the C library's locale, which the
    /// host may have set.
    bool PrintFloat(const String& options, wchar_t letter, double number) {
        const std::size_t start = FResult.size();
        if (!Print(options, String(1, letter), number)) return false;
        const auto sign = static_cast<unsigned char>(*std::localeconv()->decimal_point);
        std::replace(FResult.begin() + static_cast<std::ptrdiff_t>(start), FResult.end(),
                     static_cast<wchar_t>(std::btowc(sign)), L'.');
        return true;
    }

    [[noreturn]] static void Misfit(StringView place) {
        throw EConvertError(L"Format '" + String(place) + L"' invalid or incompatible with argument");
    }

    StringView FFormat;
    std::span<const TFormatArg> FArgs;
    String FResult;
    std::size_t FAt = 0;
    std::size_t FNext = 0;
};

String FormatArgs(StringView format, std::span<const TFormatArg> args) {
    return TFormatter(format, args).Run();
}

}  // namespace vcl
