#include "platform/vcl/graphics/WicCodec.h"

#include <objbase.h>
#include <ocidl.h>
#include <wincodec.h>

#include <algorithm>
#include <utility>

// The Windows Imaging Component: https://learn.microsoft.com/windows/win32/wic

namespace vcl {
namespace {

/// Readies the thread for COM while the codec works; a thread that is ready in another way stays as it is.
class TComScope {
public:
    TComScope() : FResult(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    TComScope(const TComScope&) = delete;
    TComScope& operator=(const TComScope&) = delete;
    ~TComScope() {
        if (SUCCEEDED(FResult)) ::CoUninitialize();
    }

private:
    HRESULT FResult;
};

/// A counted reference to a COM object.
template <class T>
class TComPtr {
public:
    TComPtr() = default;
    TComPtr(const TComPtr&) = delete;
    TComPtr& operator=(const TComPtr&) = delete;
    ~TComPtr() {
        if (FObject) FObject->Release();
    }
    [[nodiscard]] T* Get() const { return FObject; }
    T* operator->() const { return FObject; }
    [[nodiscard]] T** Out() { return &FObject; }

private:
    T* FObject = nullptr;
};

/// Carries the first failure of a row of calls to its end.
class TSteps {
public:
    template <class Call>
    TSteps& Then(Call call) {
        if (SUCCEEDED(FResult)) FResult = call();
        return *this;
    }
    [[nodiscard]] HRESULT Result() const { return FResult; }

private:
    HRESULT FResult = S_OK;
};

HRESULT MakeFactory(TComPtr<IWICImagingFactory>& factory) {
    return ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                              reinterpret_cast<void**>(factory.Out()));
}

/// Copies decoded pixels of four bytes, top row first, into a bitmap of 24 or 32 bits.
HRESULT CopyPixels(IWICBitmapSource& source, bool withAlpha, TBitmap& bitmap) {
    UINT width = 0;
    UINT height = 0;
    if (const HRESULT result = source.GetSize(&width, &height); FAILED(result)) return result;
    if (width == 0 || height == 0) return WINCODEC_ERR_BADIMAGE;
    TBitmap decoded(static_cast<int>(width), static_cast<int>(height), withAlpha ? pf32bit : pf24bit);
    const TBitmapBits bits = decoded.WriteBits();
    std::vector<BYTE> row(std::size_t{width} * 4);
    for (UINT y = 0; y < height; ++y) {
        const WICRect line{0, static_cast<INT>(y), static_cast<INT>(width), 1};
        const HRESULT result = source.CopyPixels(&line, width * 4, static_cast<UINT>(row.size()), row.data());
        if (FAILED(result)) return result;
        std::uint8_t* to = bits.Row(static_cast<int>(y));
        for (UINT x = 0; x < width; ++x, to += bits.BytesPerPixel)
            std::copy_n(row.data() + std::size_t{x} * 4, bits.BytesPerPixel, to);
    }
    bitmap.Assign(&decoded);
    return S_OK;
}

/// The options of an encoder: its quality, where it has one.
HRESULT SetQuality(IPropertyBag2& options, int quality) {
    if (quality == 0) return S_OK;
    wchar_t name[] = L"ImageQuality";
    PROPBAG2 option{};
    option.pstrName = name;
    VARIANT value{};
    value.vt = VT_R4;
    value.fltVal = static_cast<float>(quality) / 100.0F;
    return options.Write(1, &option, &value);
}

/// Takes the alpha back out of the colours of premultiplied pixels, as files have them.
void Unmultiply(std::span<BYTE> row) {
    for (std::size_t x = 0; x + 3 < row.size(); x += 4) {
        const int alpha = row[x + 3];
        for (std::size_t i = x; alpha && i < x + 3; ++i)
            row[i] = static_cast<BYTE>(std::min(255, (row[i] * 255 + alpha / 2) / alpha));
    }
}

/// The pixels of a bitmap, top row first, in the layout that the encoders take.
std::vector<BYTE> RowsOf(const TBitmap& bitmap, bool withAlpha) {
    TBitmap plain;
    plain.Assign(&bitmap);
    plain.SetPixelFormat(withAlpha ? pf32bit : pf24bit);
    const TConstBitmapBits bits = std::as_const(plain).ReadBits();
    const auto rowBytes = static_cast<std::size_t>(bits.Width * bits.BytesPerPixel);
    std::vector<BYTE> rows(rowBytes * static_cast<std::size_t>(bits.Height));
    for (int y = 0; y < bits.Height; ++y)
        std::copy_n(bits.Row(y), rowBytes, rows.data() + static_cast<std::size_t>(y) * rowBytes);
    if (withAlpha) Unmultiply(rows);
    return rows;
}

HRESULT BytesOf(IStream& stream, std::vector<std::byte>& bytes) {
    STATSTG state{};
    const LARGE_INTEGER start{};
    ULONG done = 0;
    HRESULT result = stream.Stat(&state, STATFLAG_NONAME);
    if (SUCCEEDED(result)) result = stream.Seek(start, STREAM_SEEK_SET, nullptr);
    if (FAILED(result)) return result;
    bytes.resize(static_cast<std::size_t>(state.cbSize.QuadPart));
    return stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &done);
}

}  // namespace

HRESULT DecodePicture(std::span<const std::byte> bytes, const GUID& container, bool withAlpha,
                      TBitmap& bitmap) {
    const TComScope com;
    TComPtr<IWICImagingFactory> factory;
    TComPtr<IWICStream> stream;
    TComPtr<IWICBitmapDecoder> decoder;
    TComPtr<IWICBitmapFrameDecode> frame;
    TComPtr<IWICFormatConverter> converter;
    // The stream only reads, whatever the type of its argument says.
    auto* data = reinterpret_cast<BYTE*>(const_cast<std::byte*>(bytes.data()));
    // Sources of grey or of a colour table convert to four bytes only.
    const GUID& layout = withAlpha ? GUID_WICPixelFormat32bppPBGRA : GUID_WICPixelFormat32bppBGR;
    return TSteps()
        .Then([&] { return MakeFactory(factory); })
        .Then([&] { return factory->CreateStream(stream.Out()); })
        .Then([&] { return stream->InitializeFromMemory(data, static_cast<DWORD>(bytes.size())); })
        .Then([&] { return factory->CreateDecoder(container, nullptr, decoder.Out()); })
        .Then([&] { return decoder->Initialize(stream.Get(), WICDecodeMetadataCacheOnLoad); })
        .Then([&] { return decoder->GetFrame(0, frame.Out()); })
        .Then([&] { return factory->CreateFormatConverter(converter.Out()); })
        .Then([&] {
            return converter->Initialize(frame.Get(), layout, WICBitmapDitherTypeNone, nullptr, 0,
                                         WICBitmapPaletteTypeCustom);
        })
        .Then([&] { return CopyPixels(*converter.Get(), withAlpha, bitmap); })
        .Result();
}

HRESULT EncodePicture(const TBitmap& bitmap, const GUID& container, bool withAlpha, int quality,
                      std::vector<std::byte>& bytes) {
    const TComScope com;
    TComPtr<IWICImagingFactory> factory;
    TComPtr<IStream> stream;
    TComPtr<IWICBitmapEncoder> encoder;
    TComPtr<IWICBitmapFrameEncode> frame;
    TComPtr<IPropertyBag2> options;
    const auto width = static_cast<UINT>(bitmap.GetWidth());
    const auto height = static_cast<UINT>(bitmap.GetHeight());
    std::vector<BYTE> rows = RowsOf(bitmap, withAlpha);
    WICPixelFormatGUID layout = withAlpha ? GUID_WICPixelFormat32bppBGRA : GUID_WICPixelFormat24bppBGR;
    return TSteps()
        .Then([&] { return MakeFactory(factory); })
        .Then([&] { return ::CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()); })
        .Then([&] { return factory->CreateEncoder(container, nullptr, encoder.Out()); })
        .Then([&] { return encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache); })
        .Then([&] { return encoder->CreateNewFrame(frame.Out(), options.Out()); })
        .Then([&] { return SetQuality(*options.Get(), quality); })
        .Then([&] { return frame->Initialize(options.Get()); })
        .Then([&] { return frame->SetSize(width, height); })
        .Then([&] { return frame->SetPixelFormat(&layout); })
        .Then([&] {
            return frame->WritePixels(height, static_cast<UINT>(rows.size()) / height,
                                      static_cast<UINT>(rows.size()), rows.data());
        })
        .Then([&] { return frame->Commit(); })
        .Then([&] { return encoder->Commit(); })
        .Then([&] { return BytesOf(*stream.Get(), bytes); })
        .Result();
}

}  // namespace vcl
