#pragma once

#include <QString>
#include <private/qlocale_p.h>

/// Gives the system locale a decimal point of any text for the time of its scope.
class ScopedSystemLocale : private QSystemLocale
{
public:
    explicit ScopedSystemLocale(const QString& decimal_point) : m_decimal_point(decimal_point) { }

private:
    QVariant query(QueryType type, QVariant&& in) const override
    {
        return type == DecimalPoint ? m_decimal_point : QSystemLocale::query(type, std::move(in));
    }

    const QString m_decimal_point;
};

/// Sets an environment variable that a locale comes from, for the time of its scope, and lets the system
/// locale be read anew.
class ScopedLocaleVariable
{
public:
    ScopedLocaleVariable(const char* name, const QByteArray& value) : m_name(name), m_former(qgetenv(name))
    {
        qputenv(name, value);
    }

    ~ScopedLocaleVariable() { qputenv(m_name, m_former); }

    ScopedLocaleVariable(const ScopedLocaleVariable&) = delete;
    ScopedLocaleVariable& operator=(const ScopedLocaleVariable&) = delete;

private:
    const char* const m_name;
    const QByteArray m_former;
    const QSystemLocale m_reader; // Qt reads the environment again for a new system locale
};
