#pragma once

#include <QString>

#include <exception>
#include <functional>

/// The trap of one procedure: runs a statement and, when it fails, writes the failure to the error log under the
/// procedure's two names and goes on. What else a procedure does about an error stands in `onError`.
class ErrorTrap {
public:
    ErrorTrap(QString formName, QString procedureName, std::function<void()> onError = {});

    /// What became of a statement.
    enum class Outcome { Done, Failed };

    template<typename Statement>
    Outcome operator()(Statement&& statement) const {
        try {
            statement();
            return Outcome::Done;
        } catch (const std::exception& error) {
            report(QString::fromUtf8(error.what()));
        } catch (...) {
            report("An error of unknown kind");
        }
        return Outcome::Failed;
    }

private:
    void report(const QString& description) const;

    QString m_formName;
    QString m_procedureName;
    std::function<void()> m_onError;
};
