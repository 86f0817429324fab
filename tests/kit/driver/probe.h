#pragma once

#include <initializer_list>
#include <vector>

#include "tests/kit/driver/probe_protocol.h"
#include "tests/kit/driver/window.h"

namespace corvane::test {

/// Asks a question about `window` inside its own process and gives the record back with the answer.
/// Throws Failure when no answer comes.
[[nodiscard]] ProbeRequest Probe(const Window& window, const ProbeRequest& question);

/// Numbers of the system's pointers.
inline constexpr int kArrow = 32512;
inline constexpr int kHourglass = 32514;

/// The pointer that the thread of `window` shows: a number of the system's (IDC_ARROW and its kin), 0 for
/// any other.
[[nodiscard]] int PointerOf(const Window& window);

/// Notes the messages that are sent to a window of the driven program, for as long as this object lives. One
/// at a time.
class MessageWatch {
  public:
    /// Notes these messages, of which there may be four.
    MessageWatch(const Window& window, std::initializer_list<UINT> messages);
    MessageWatch(const MessageWatch&) = delete;
    MessageWatch& operator=(const MessageWatch&) = delete;
    MessageWatch(MessageWatch&&) = delete;
    MessageWatch& operator=(MessageWatch&&) = delete;
    ~MessageWatch();

    /// What has been sent so far, in order.
    [[nodiscard]] std::vector<ProbeMessage> Sent() const;

  private:
    Window window_;
    HHOOK hook_;
};

}  // namespace corvane::test
