#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/vcl/streaming/FormPlace.h"

namespace vcl {

enum class TFormTokenKind { End, Name, Integer, Float, String, Symbol };

/// The smallest unit of a text: a name, a number, a whole string with all its pieces, a sign.
struct TFormToken {
    TFormTokenKind Kind = TFormTokenKind::End;
    TFormPosition Position;
    StringView Text;  ///< As it stands in the source; of names with all their dots.
    String Value;     ///< Of strings: the text they stand for.
    std::int64_t Integer = 0;
    TFormFloat Float;

    [[nodiscard]] bool IsSymbol(wchar_t symbol) const {
        return Kind == TFormTokenKind::Symbol && Text.front() == symbol;
    }
    /// What a message calls the token.
    [[nodiscard]] String Description() const;
};

/// Cuts the text of a form file into tokens. Raises EFormError at the place's object and property.
class TFormLexer {
public:
    /// Stands on the first token; `source` and `place` must outlive it.
    TFormLexer(StringView source, const TFormPlace& place);

    [[nodiscard]] const TFormToken& Token() const { return FToken; }
    void Advance();
    /// True when the present token is that name, in any case, and no property: no `=` follows.
    [[nodiscard]] bool IsKeyword(StringView keyword) const;
    /// The bytes up to the closing brace; the present token is the opening one, and the next one afterwards
    /// what follows.
    [[nodiscard]] std::vector<std::byte> ReadBytes();

private:
    [[nodiscard]] wchar_t Peek(std::size_t ahead = 0) const {
        return FNext + ahead < FSource.size() ? FSource[FNext + ahead] : L'\0';
    }
    [[nodiscard]] bool AtEnd() const { return FNext >= FSource.size(); }
    [[nodiscard]] TFormPosition Here() const;
    void SkipBlanks();
    void ReadName();
    void ReadNumber();
    /// Goes past the digits, fraction and exponent of a number; false when digits are missing.
    bool SkipNumber(bool& hasFraction);
    void ReadHexadecimal(bool negative);
    void ReadString();
    void ReadQuoted();
    void ReadCharacterCode();
    bool SkipDigits();
    [[noreturn]] void Fail(TFormProblemKind kind, TFormPosition position, String text) const;

    StringView FSource;
    const TFormPlace& FPlace;
    std::size_t FNext = 0;
    std::size_t FLineStart = 0;
    std::uint32_t FLine = 1;
    TFormToken FToken;
};

}  // namespace vcl
