#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>

#include "ui/user_dialogs.h"

namespace coltre {

/// A user whose message boxes are known in advance. One that was not expected fails the test, and so does an
/// expected one that never came.
class FakeDialogs : public UserDialogs {
  public:
    using UserDialogs::show;
    ~FakeDialogs() override {
        for (const Expected& it : m_expected)
            ADD_FAILURE() << "message box did not come: " << it.message.text;
    }

    void expect(Icon icon, std::string text) {
        m_expected.push_back({{icon, "Coltre", std::move(text)}, false, false});
    }
    void expect_stop(const std::string& text) { expect(Icon::error, "Calcolo interrotto: " + text); }
    void expect_question(Icon icon, std::string text, bool answer) {
        m_expected.push_back({{icon, "Coltre", std::move(text)}, true, answer});
    }

    void show(const Message& message) override { meet(message, false); }
    bool ask(const Message& question) override { return meet(question, true); }
    void end() override { ++ended; }

    int ended = 0;
    std::function<void()> while_shown;  ///< called with each message box

  private:
    struct Expected {
        Message message;
        bool question;
        bool answer;
    };

    bool meet(const Message& message, bool question) {
        if (while_shown) while_shown();
        if (m_expected.empty()) {
            ADD_FAILURE() << "unexpected message box: " << message.text;
            return false;
        }
        const Expected next = m_expected.front();
        m_expected.pop_front();
        EXPECT_EQ(message, next.message) << message.text;
        EXPECT_EQ(question, next.question);
        return next.answer;
    }

    std::deque<Expected> m_expected;
};

}  // namespace coltre
