// A control's event: at most one handler, as in an event procedure.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace nv::forms {

template <class... Arguments>
class Event {
 public:
  using Handler = std::function<void(Arguments...)>;

  Event& operator=(Handler handler) {
    handler_ = handler ? std::make_shared<const Handler>(std::move(handler)) : nullptr;
    return *this;
  }

  void raise(Arguments... arguments) const {
    // Held while it runs: a handler may replace itself, or let go of whoever installed it.
    if (const auto running = handler_) (*running)(arguments...);
  }

 private:
  std::shared_ptr<const Handler> handler_;
};

}  // namespace nv::forms
