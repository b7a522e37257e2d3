#pragma once

#include "platform/vcl/controls/AppServices.h"

namespace vcl {

class TApplication;

/// Connects the controls with the application above them for as long as it exists.
class TApplicationServices final : public TAppServices {
public:
    explicit TApplicationServices(TApplication& application);
    ~TApplicationServices() override;
    TApplicationServices(const TApplicationServices&) = delete;
    TApplicationServices& operator=(const TApplicationServices&) = delete;

    void HandleException(std::exception_ptr error) override;
    void HintMouseMessage(TControl* control, TMessage& message) override;
    void CancelHint() override;
    void SetHint(const String& text) override;
    [[nodiscard]] HCURSOR CursorHandle(TCursor cursor) override;
    [[nodiscard]] TCursor ScreenCursor() const override;
    bool IsShortCut(TMessage& message) override;
    bool ExecuteAction(TBasicAction* action) override;
    bool UpdateAction(TBasicAction* action) override;
    [[nodiscard]] std::vector<TObject*> ActionTargets() override;
    [[nodiscard]] bool IsActive() const override;
    void ModalStarted() override;
    void ModalFinished() override;
    bool ProcessMessages() override;

private:
    TApplication& FApplication;
    TAppServices* FFormer;
};

}  // namespace vcl
