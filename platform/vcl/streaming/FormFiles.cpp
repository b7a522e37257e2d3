#include "platform/vcl/streaming/FormFiles.h"

#include "platform/vcl/core/Streams.h"
#include "platform/vcl/core/TextEncoding.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormText.h"

#include <algorithm>

namespace vcl {

TFormDocument ParseForm(std::span<const std::byte> bytes, const String& fileName) {
    if (IsFormBinary(bytes)) return ParseFormBinary(bytes, fileName);
    return ParseFormText(DecodeText(bytes), fileName);
}

TFormDocument LoadFormFile(const String& fileName) {
    TMemoryStream stream;
    stream.LoadFromFile(fileName);
    return ParseForm(stream.GetMemory(), fileName);
}

std::vector<std::byte> FormToBytes(const TFormDocument& document, TFormFormat format) {
    if (format == TFormFormat::Binary) return FormToBinary(document);
    const std::string text = FormToText(document);
    std::vector<std::byte> bytes;
    if (!std::ranges::all_of(text, [](unsigned char c) { return c < 0x80; }))
        bytes = {std::byte{0xEF}, std::byte{0xBB}, std::byte{0xBF}};
    const auto content = std::as_bytes(std::span(text));
    bytes.insert(bytes.end(), content.begin(), content.end());
    return bytes;
}

void SaveFormFile(const TFormDocument& document, const String& fileName, TFormFormat format) {
    // The bytes first: a form that can't be written leaves an existing file as it is.
    const auto bytes = FormToBytes(document, format);
    TFileStream stream(fileName, fmCreate);
    stream.WriteBuffer(bytes.data(), bytes.size());
}

}  // namespace vcl
