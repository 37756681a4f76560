#pragma once

#include <type_traits>
#include <utility>

#include <wx/weakref.h>

namespace vantrel {

/// Holds a window that stands by itself and may be gone before its holder: the window system, the
/// operator or the window itself may destroy it. What is still there is destroyed with the holder.
template <typename Window>
class WindowHolder {
  public:
    WindowHolder() = default;
    explicit WindowHolder(Window* window) : window_(window) {}
    ~WindowHolder() { unload(); }
    WindowHolder(const WindowHolder&) = delete;
    WindowHolder& operator=(const WindowHolder&) = delete;

    /// The window, or null when it is gone.
    Window* get() const { return window_.get(); }
    explicit operator bool() const { return get() != nullptr; }
    Window* operator->() const { return get(); }
    Window& operator*() const { return *get(); }

    void reset(Window* window) {
        unload();
        window_ = window;
    }
    void unload() {
        if (Window* const window = window_.get()) {
            window_ = nullptr;
            window->Destroy();
        }
    }

  private:
    wxWeakRef<Window> window_;
};

} // namespace vantrel
