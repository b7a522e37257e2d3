#include "skin/UnitQV7SkinConsts.h"

#include "platform/vcl/core/Resources.h"

namespace qv7skin {

const wchar_t* SkinStateWord(TSkinState state) {
    static constexpr const wchar_t* words[] = {L"DEFAULT", L"HOVERED", L"PRESSED", L"DISABLED"};
    return words[static_cast<int>(state)];
}

const wchar_t* FramePositionWord(TFramePosition position) {
    static constexpr const wchar_t* words[] = {L"TOPLEFT",    L"TOPCENTER",    L"TOPRIGHT",
                                               L"BOTTOMLEFT", L"BOTTOMCENTER", L"BOTTOMRIGHT",
                                               L"LEFTCENTER", L"RIGHTCENTER"};
    return words[static_cast<int>(position)];
}

const wchar_t* BandPositionWord(TBandPosition position) {
    static constexpr const wchar_t* words[] = {L"LEFT", L"CENTER", L"RIGHT"};
    return words[static_cast<int>(position)];
}

String SkinResourceName(StringView prefix, TSkinState state) {
    return String(prefix) + SkinStateWord(state);
}

String FrameResourceName(StringView prefix, TFramePosition position) {
    return String(prefix) + FramePositionWord(position);
}

String BandResourceName(StringView prefix, TBandPosition position) {
    return String(prefix) + BandPositionWord(position);
}

String LoadSkinString(unsigned id) {
    return LoadResString(QV7SkinModule(), id);
}

const wchar_t* QV7SkinPackageDescription() {
    return L"QV7-Skin-Komponenten";
}

HINSTANCE QV7SkinModule() {
    static const HINSTANCE module = ModuleOfAddress(reinterpret_cast<const void*>(&QV7SkinModule));
    return module;
}

}  // namespace qv7skin
