#include "services/ErrorTrap.h"

#include "services/ErrorLog.h"

ErrorTrap::ErrorTrap(QString formName, QString procedureName, std::function<void()> onError)
    : m_formName(std::move(formName))
    , m_procedureName(std::move(procedureName))
    , m_onError(std::move(onError)) {}

void ErrorTrap::report(const QString& description) const {
    // An error without words is an error still, and the log writes nothing for an empty description.
    WriteErrorLog(m_formName, m_procedureName,
                  description.trimmed().isEmpty() ? "An error without a text" : description);
    if (m_onError)
        m_onError();
}
