#include "interruption.h"

#include <csignal>

namespace tools {

namespace {

volatile std::sig_atomic_t was_asked = 0;

void ask(int)
{
    was_asked = 1;
}

Owned<IDirectFBEventBuffer> listen_to_keys(IDirectFB* dfb)
{
    IDirectFBEventBuffer* keys = nullptr;
    check(dfb->CreateInputEventBuffer(dfb, DICAPS_KEYS, DFB_TRUE, &keys), "cannot listen to the keyboard");
    return Owned<IDirectFBEventBuffer>(keys);
}

bool is_escape(const DFBInputEvent& event)
{
    return event.type == DIET_KEYPRESS && event.key_symbol == DIKS_ESCAPE;
}

} // namespace

void catch_signals()
{
    std::signal(SIGINT, ask);
    std::signal(SIGTERM, ask);
}

Interruption::Interruption(IDirectFB* dfb) : keys_(listen_to_keys(dfb))
{
}

bool Interruption::has_come() const
{
    DFBEvent event;
    while (keys_->GetEvent(keys_.get(), &event) == DFB_OK) {
        if (is_escape(event.input))
            was_asked = 1;
    }
    return was_asked;
}

/// No signal wakes DirectFB, hence the short waits.
void Interruption::await() const
{
    while (!has_come())
        keys_->WaitForEventWithTimeout(keys_.get(), 0, 100);
}

} // namespace tools
