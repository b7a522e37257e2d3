#include "resources/skinart/Lettering.h"

#include <array>
#include <cstddef>

namespace skinart {

namespace {

// Five rows of three pixels a letter, top row first.
struct Letter {
    char Character;
    std::array<const char*, kLetterHeight> Rows;
};

constexpr Letter kLetters[] = {
    {'A', {".#.", "#.#", "###", "#.#", "#.#"}}, {'B', {"##.", "#.#", "##.", "#.#", "##."}},
    {'C', {".##", "#..", "#..", "#..", ".##"}}, {'D', {"##.", "#.#", "#.#", "#.#", "##."}},
    {'E', {"###", "#..", "##.", "#..", "###"}}, {'F', {"###", "#..", "##.", "#..", "#.."}},
    {'G', {".##", "#..", "#.#", "#.#", ".##"}}, {'H', {"#.#", "#.#", "###", "#.#", "#.#"}},
    {'I', {"###", ".#.", ".#.", ".#.", "###"}}, {'J', {"..#", "..#", "..#", "#.#", ".#."}},
    {'K', {"#.#", "#.#", "##.", "#.#", "#.#"}}, {'L', {"#..", "#..", "#..", "#..", "###"}},
    {'M', {"#.#", "###", "###", "#.#", "#.#"}}, {'N', {"##.", "#.#", "#.#", "#.#", "#.#"}},
    {'O', {".#.", "#.#", "#.#", "#.#", ".#."}}, {'P', {"##.", "#.#", "##.", "#..", "#.."}},
    {'Q', {".#.", "#.#", "#.#", "##.", ".##"}}, {'R', {"##.", "#.#", "##.", "#.#", "#.#"}},
    {'S', {".##", "#..", ".#.", "..#", "##."}}, {'T', {"###", ".#.", ".#.", ".#.", ".#."}},
    {'U', {"#.#", "#.#", "#.#", "#.#", "###"}}, {'V', {"#.#", "#.#", "#.#", "#.#", ".#."}},
    {'W', {"#.#", "#.#", "###", "###", "#.#"}}, {'X', {"#.#", "#.#", ".#.", "#.#", "#.#"}},
    {'Y', {"#.#", "#.#", ".#.", ".#.", ".#."}}, {'Z', {"###", "..#", ".#.", "#..", "###"}},
    {'0', {"###", "#.#", "#.#", "#.#", "###"}}, {'1', {".#.", "##.", ".#.", ".#.", "###"}},
    {'2', {"##.", "..#", ".#.", "#..", "###"}}, {'3', {"##.", "..#", ".#.", "..#", "##."}},
    {'4', {"#.#", "#.#", "###", "..#", "..#"}}, {'5', {"###", "#..", "##.", "..#", "##."}},
    {'6', {".##", "#..", "###", "#.#", "###"}}, {'7', {"###", "..#", ".#.", ".#.", ".#."}},
    {'8', {"###", "#.#", "###", "#.#", "###"}}, {'9', {"###", "#.#", "###", "..#", "##."}},
    {'-', {"...", "...", "###", "...", "..."}},
};

void WriteLetter(Picture& picture, int left, int top, const Letter& letter, Rgb color, int scale) {
    const Picture dot(1, 1, color);
    for (int row = 0; row < kLetterHeight; ++row) {
        for (int column = 0; column < kLetterWidth - 1; ++column) {
            if (letter.Rows[static_cast<std::size_t>(row)][column] != '#') continue;
            picture.Stretch(dot, left + column * scale, top + row * scale, scale, scale);
        }
    }
}

}  // namespace

void WriteText(Picture& picture, int left, int top, std::string_view text, Rgb color, int scale) {
    for (const char character : text) {
        for (const Letter& letter : kLetters) {
            if (letter.Character == character) WriteLetter(picture, left, top, letter, color, scale);
        }
        left += kLetterWidth * scale;
    }
}

}  // namespace skinart
