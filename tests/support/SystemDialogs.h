#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <thread>

namespace test {

/// Works the dialogs that the system shows for a call of the thread under test, with keys and mouse. Such a
/// dialog fetches its input itself, so its user is another thread: what this class does waits for the dialog
/// by condition, and for every input to take effect. A wait that fails closes the dialogs that stand open, so
/// that the thread under test goes on; the rest of the steps is left out then.
class SystemDialogUser {
public:
    /// Waits until a dialog of the thread whose title has that in it waits for input, and takes it.
    void WaitForDialog(std::wstring_view titlePart = {});
    /// Waits until the dialog that was taken is gone, or another one lies before it.
    void WaitUntilLeft();
    /// Replaces the text of the field that has the focus.
    void TypeInstead(std::wstring_view text);
    void KeyPress(WORD virtualKey);
    /// Clicks on the button of the dialog that has this number, such as IDYES.
    void ClickButton(int id);
    /// What the field that has the focus holds.
    [[nodiscard]] std::wstring FocusedText() const;
    /// The window of the dialog that was taken.
    [[nodiscard]] HWND Dialog() const { return FDialog; }

private:
    friend class SystemDialogs;
    struct Stopped {};
    explicit SystemDialogUser(DWORD thread) : FThread(thread) {}
    void Require(const std::function<bool()>& condition, const std::string& what);
    void CloseAll() const;
    [[nodiscard]] HWND Focus() const;

    DWORD FThread;
    HWND FDialog = nullptr;
    std::string FFailure;
};

/// Plays the user of the dialogs that the calling thread opens from now on. The destructor waits until the
/// steps have ended, and fails the test when one of them waited in vain.
class SystemDialogs {
public:
    explicit SystemDialogs(std::function<void(SystemDialogUser&)> steps);
    ~SystemDialogs();
    SystemDialogs(const SystemDialogs&) = delete;
    SystemDialogs& operator=(const SystemDialogs&) = delete;

private:
    SystemDialogUser FUser;
    std::thread FThread;
};

}  // namespace test
