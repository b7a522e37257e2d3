#include "platform/vcl/streaming/FormResources.h"

#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/Resources.h"
#include "platform/vcl/core/Streams.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vcl {
namespace {

TComponent* ReadDocument(const TFormDocument& document, TComponent* root) {
    return TReader(document).ReadRootComponent(root);
}

TFormDocument LoadFormResource(HINSTANCE module, const String& name) {
    return ParseForm(FindResourceBytes(module, name, RT_RCDATA), name);
}

}  // namespace

TComponent* ReadComponent(TStream& stream, TComponent* root) {
    const std::int64_t start = stream.GetPosition();
    std::vector<std::byte> bytes(
        static_cast<std::size_t>(std::max<std::int64_t>(stream.GetSize() - start, 0)));
    stream.ReadBuffer(bytes.data(), bytes.size());
    if (!IsFormBinary(bytes)) return ReadDocument(ParseForm(bytes), root);
    std::size_t length = 0;
    const TFormDocument document = ParseFormBinary(bytes, {}, length);
    stream.SetPosition(start + static_cast<std::int64_t>(length));
    return ReadDocument(document, root);
}

TComponent* ReadComponentFile(const String& fileName, TComponent* root) {
    return ReadDocument(LoadFormFile(fileName), root);
}

TComponent* ReadComponentRes(HINSTANCE module, const String& name, TComponent* root) {
    return ReadDocument(LoadFormResource(module, name), root);
}

void WriteComponent(TStream& stream, TComponent& root, TFormFormat format) {
    const auto bytes = FormToBytes(TWriter().WriteRootComponent(root), format);
    stream.WriteBuffer(bytes.data(), bytes.size());
}

void WriteComponentFile(const String& fileName, TComponent& root, TFormFormat format) {
    SaveFormFile(TWriter().WriteRootComponent(root), fileName, format);
}

bool InitInheritedComponent(TComponent& instance, const TMetaClass& rootAncestor) {
    std::vector<std::pair<HINSTANCE, String>> forms;
    for (const TMetaClass* meta = &instance.ClassType(); meta && meta != &rootAncestor;
         meta = meta->ClassParent()) {
        const HINSTANCE module = ModuleOfClass(*meta);
        String name = UpperCase(meta->ClassName());
        if (HasResource(module, name, RT_RCDATA)) forms.emplace_back(module, std::move(name));
    }
    TLoadSession own;
    TLoadSession* outer = TLoadSession::ToJoin(instance);
    TLoadSession& session = outer ? *outer : own;
    const std::size_t first = session.Entries().size();
    try {
        for (auto form = forms.rbegin(); form != forms.rend(); ++form) {
            const TFormDocument document = LoadFormResource(form->first, form->second);
            TReader reader(document);
            reader.Join(session);
            reader.ReadRootComponent(&instance);
        }
        if (!outer)
            session.Complete(instance, [](TFormProblem problem) { throw EFormError(std::move(problem)); });
    } catch (...) {
        session.Abandon(first);
        throw;
    }
    return !forms.empty();
}

}  // namespace vcl
