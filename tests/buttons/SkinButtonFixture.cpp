#include "tests/buttons/SkinButtonFixture.h"

#include <string>

#include "skin/UnitQV7SkinConsts.h"

namespace test {
namespace {

constexpr COLORREF Magenta = 0x00FF00FF;

Pixels Piece(const std::wstring& name) {
    const auto bitmap = static_cast<HBITMAP>(
        LoadImageW(qv7skin::QV7SkinModule(), name.c_str(), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    Pixels pixels = ReadBitmap(bitmap);
    DeleteObject(bitmap);
    return pixels;
}

struct Look {
    const wchar_t* Word;
    COLORREF Interior;
};

Look LookOf(velmora::TButtonExState state) {
    switch (static_cast<int>(state)) {
        case 0:
            return {L"DEFAULT", 0x00000000};
        case 1:
            return {L"DISABLED", 0x00939393};
        case 3:
            return {L"HOVERED", 0x00000000};
        default:
            return {L"PRESSED", 0x00C66021};
    }
}

void Put(Pixels& face, const Pixels& piece, int left, int top) {
    for (int y = 0; y < piece.Height(); ++y)
        for (int x = 0; x < piece.Width(); ++x)
            face.Set(left + x, top + y, piece.At(x, y));
}

}  // namespace

Pixels ExpectedFace(velmora::TButtonExState state, int width, int height) {
    const Look look = LookOf(state);
    const auto piece = [&](const wchar_t* position) {
        return Piece(std::wstring(L"SKINBUTTON") + look.Word + position);
    };
    Pixels face(width, height, look.Interior);
    const Pixels top = piece(L"TOPCENTER"), bottom = piece(L"BOTTOMCENTER");
    const Pixels left = piece(L"LEFTCENTER"), right = piece(L"RIGHTCENTER");
    for (int x = 13; x < width - 13; ++x) {
        Put(face, top, x, 0);
        Put(face, bottom, x, height - 12);
    }
    for (int y = 12; y < height - 12; ++y) {
        Put(face, left, 0, y);
        Put(face, right, width - 7, y);
    }
    Put(face, piece(L"TOPLEFT"), 0, 0);
    Put(face, piece(L"TOPRIGHT"), width - 13, 0);
    Put(face, piece(L"BOTTOMLEFT"), 0, height - 12);
    Put(face, piece(L"BOTTOMRIGHT"), width - 13, height - 12);
    return face;
}

void SkinButtonTest::SetUp() {
    FormTest::SetUp();
    Form().SetColor(FormColor);
    Button = Make<ProbeSkinButton>({50, 40, 150, 65});
    Form().SetActiveControl(nullptr);
    PumpAll();
}

Pixels SkinButtonTest::Shown() {
    const vcl::TRect r = Button->GetBoundsRect();
    return ReadClient(Form().GetHandle()).Part({r.Left, r.Top, r.Right, r.Bottom});
}

Pixels SkinButtonTest::OnForm(Pixels face, const Pixels& outline) {
    for (int y = 0; y < face.Height(); ++y)
        for (int x = 0; x < face.Width(); ++x)
            if (outline.At(x, y) == Magenta) face.Set(x, y, FormColor);
    return face;
}

Pixels SkinButtonTest::OnForm(const Pixels& face) {
    return OnForm(face, ExpectedFace(velmora::bexNormal, face.Width(), face.Height()));
}

}  // namespace test
