#pragma once

#include "app/support/Journal.h"
#include "core/RunViews.h"
#include "records/SharedRecords.h"

#include <deque>
#include <functional>
#include <vector>

namespace tavrelion::tests {

class FakeMessageBox : public UserMessages {
public:
    explicit FakeMessageBox(Journal& journal)
        : m_journal(journal) {}

    struct Message {
        Icon icon;
        QString text;
        QString title;
    };
    std::vector<Message> messages;
    QStringList questions;
    Answer answer = Answer::No;

    void tell(Icon icon, const QString& text, const QString& title) override {
        messages.push_back({icon, text, title});
        m_journal << "message";
    }
    Answer ask(const QString& question, const QString&) override {
        questions << question;
        return answer;
    }

private:
    Journal& m_journal;
};

class FakeYesNoDialog : public YesNoDialog {
public:
    explicit FakeYesNoDialog(SharedRecords& records)
        : m_records(records) {}

    std::int16_t answer = 0;
    QStringList asked;
    std::vector<Place> places;
    std::function<void()> whileOpen;

    void ask(const QString& controlName, Place place) override {
        asked << controlName;
        places.push_back(place);
        if (whileOpen)
            whileOpen();
        m_records.flags.intDialogAnswer = answer;
    }

private:
    SharedRecords& m_records;
};

/// Enters one password after the other; gives the file up when none is left, as the real window does.
class FakePasswordPrompt : public PasswordPrompt {
public:
    explicit FakePasswordPrompt(SharedRecords& records)
        : m_records(records) {}

    std::deque<QString> passwords;
    std::vector<Password> asked;
    std::function<void()> giveUp;
    std::function<void()> whileOpen;

    void ask(Password wanted) override {
        asked.push_back(wanted);
        if (whileOpen)
            whileOpen();
        m_records.flags.intDialogAnswer = passwords.empty() ? 0 : 1;
        if (passwords.empty())
            return giveUp();
        m_records.job.strPdfPassword = passwords.front();
        passwords.pop_front();
    }

private:
    SharedRecords& m_records;
};

} // namespace tavrelion::tests
