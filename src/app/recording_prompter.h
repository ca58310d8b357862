#pragma once
// The command line's answer to message boxes: each text is collected for the
// command that showed it, and questions are answered by a fixed reply.

#include <string>
#include <vector>

#include "prompter.h"

namespace quilmar {

class RecordingPrompter : public Prompter {
public:
    explicit RecordingPrompter(Answer reply = Answer::Ok) : m_reply(reply) {}
    Answer ask(const std::string &text, const std::string &, Buttons, Icon) override
    {
        m_messages.push_back(text);
        return m_reply;
    }
    /// The texts shown since the last call, in order.
    std::vector<std::string> take()
    {
        std::vector<std::string> out;
        out.swap(m_messages);
        return out;
    }

private:
    Answer m_reply;
    std::vector<std::string> m_messages;
};

} // namespace quilmar
