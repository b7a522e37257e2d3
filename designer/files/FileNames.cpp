#include "designer/files/FileNames.h"

namespace designer {
namespace {

/// Where the name begins that the folder does not belong to.
std::size_t TitleBegin(const String& fileName) {
    return fileName.find_last_of(L"\\/") + 1;
}

}  // namespace

String FileTitle(const String& fileName) {
    return fileName.substr(TitleBegin(fileName));
}

String FileFolder(const String& fileName) {
    return fileName.substr(0, TitleBegin(fileName));
}

bool IsFileFolder(const String& name) {
    return !name.empty() && TitleBegin(name) == name.size();
}

}  // namespace designer
