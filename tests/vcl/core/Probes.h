#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/vcl/core/Object.h"

namespace vcl::probes {

/// An object that tells when it ends.
class TMortal : public TObject {
public:
    explicit TMortal(std::function<void()> onEnd) : FOnEnd(std::move(onEnd)) {}
    ~TMortal() override { FOnEnd(); }

private:
    std::function<void()> FOnEnd;
};

/// The text of the error that the action raises; "no error" when it raises none of that class.
template <class Error>
[[nodiscard]] std::wstring MessageOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.Message();
    }
    return L"no error";
}

}  // namespace vcl::probes
