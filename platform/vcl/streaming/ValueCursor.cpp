#include "platform/vcl/streaming/ValueCursor.h"

#include <limits>

namespace vcl {

TValueCursor::TValueCursor(const TFormValue& value, const TFormPlace& place)
    : FValue(value), FPlace(place), FLevels{{&value, &value + 1}} {}

bool TValueCursor::EndOfList() const {
    return FLevels.back().Next == FLevels.back().End;
}

TValueKind TValueCursor::NextValue() const {
    return EndOfList() ? TValueKind::EndOfList : FLevels.back().Next->Kind();
}

TFormPosition TValueCursor::Position() const {
    return EndOfList() ? FValue.Position : FLevels.back().Next->Position;
}

void TValueCursor::FailExpected(TValueKind expected) const {
    FPlace.Fail(
        TFormProblemKind::WrongType, Position(),
        Format(L"%s found where %s is expected", ValueKindText(NextValue()), ValueKindText(expected)));
}

const TFormValue& TValueCursor::Take(TValueKind expected) {
    if (NextValue() != expected) FailExpected(expected);
    return *FLevels.back().Next++;
}

std::int64_t TValueCursor::ReadInt64() {
    return *Take(TValueKind::Integer).As<std::int64_t>();
}

std::int32_t TValueCursor::ReadInteger() {
    using Limits = std::numeric_limits<std::int32_t>;
    const TFormPosition position = Position();
    const std::int64_t value = ReadInt64();
    if (value < Limits::min() || value > Limits::max())
        FPlace.Fail(TFormProblemKind::OutOfRange, position, Format(L"Number too big: %d", value));
    return static_cast<std::int32_t>(value);
}

double TValueCursor::ReadFloat() {
    if (NextValue() == TValueKind::Integer) return static_cast<double>(ReadInt64());
    return Take(TValueKind::Float).As<TFormFloat>()->ToDouble();
}

bool TValueCursor::ReadBoolean() {
    return *Take(TValueKind::Boolean).As<bool>();
}

String TValueCursor::ReadString() {
    return *Take(TValueKind::String).As<String>();
}

String TValueCursor::ReadIdent() {
    return Take(TValueKind::Identifier).As<TFormIdent>()->Name;
}

void TValueCursor::ReadListBegin() {
    const auto& values = Take(TValueKind::List).As<TFormList>()->Values;
    FLevels.push_back({values.data(), values.data() + values.size()});
}

void TValueCursor::ReadListEnd() {
    if (!EndOfList() || FLevels.size() == 1) FailExpected(TValueKind::EndOfList);
    FLevels.pop_back();
}

void TValueCursor::ExpectEnd() const {
    if (FLevels.size() == 1 && EndOfList()) return;
    FPlace.Fail(TFormProblemKind::WrongType, Position(), L"The value holds more than is expected");
}

}  // namespace vcl
