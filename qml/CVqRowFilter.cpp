#include "qml/CVqRowFilter.h"

#include <QAbstractItemModel>

#include <algorithm>

namespace {

bool is_ascii_letter_or_digit(QChar unit)
{
    return unit.unicode() < 128 && unit.isLetterOrNumber();
}

// The text that a pattern without any choice stands for, as that of a fixed text does. Empty for all others.
QString literal_of(const QRegularExpression& expression)
{
    constexpr auto changes_letters
        = QRegularExpression::CaseInsensitiveOption | QRegularExpression::ExtendedPatternSyntaxOption;
    if (expression.patternOptions() & changes_letters)
        return QString();
    const QString pattern = expression.pattern();
    QString literal;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        if (QStringView(u"^$.|?*+()[]{}").contains(pattern[at]))
            return QString();
        if (pattern[at] == u'\\') {
            ++at;
            if (at == pattern.size() || is_ascii_letter_or_digit(pattern[at]))
                return QString();
        }
        literal += pattern[at];
    }
    return literal.isValidUtf16() ? literal : QString();
}

}

CVqRowFilter::CVqRowFilter(const QAbstractItemModel* source)
{
    if (!source)
        return;
    const auto watch = [this, source](auto... signals_of_source) {
        (connect(source, signals_of_source, this, [this] { Forget(); }), ...);
    };
    using Model = QAbstractItemModel;
    watch(&Model::dataChanged, &Model::rowsInserted, &Model::rowsRemoved, &Model::rowsMoved,
          &Model::columnsInserted, &Model::columnsMoved, &Model::layoutChanged, &Model::modelReset);
}

void CVqRowFilter::Forget()
{
    m_rolesKnown = false;
}

bool CVqRowFilter::IsReadyFor(const QRegularExpression& expression) const
{
    return m_rolesKnown && m_expression == expression;
}

void CVqRowFilter::Prepare(const QRegularExpression& expression, const QList<int>& roles)
{
    m_roles = roles;
    m_rolesKnown = true;
    if (m_expression == expression)
        return;
    m_expression = expression;
    m_valid = expression.isValid();
    m_literal = literal_of(expression);
}

bool CVqRowFilter::Accepts(const QModelIndex& row) const
{
    const QList<int> roles = m_roles; // reading a value may change the source, and with it the member
    return std::any_of(roles.begin(), roles.end(),
                       [this, &row](int role) { return Matches(row.data(role).toString()); });
}

bool CVqRowFilter::Matches(const QString& text) const
{
    // Qt warns of each use of an invalid expression.
    if (m_literal.isEmpty())
        return m_valid && m_expression.matchView(text).hasMatch();
    // A search costs a fraction of what an expression does, which only differs on a text that is no UTF-16.
    return text.contains(m_literal) && (text.isValidUtf16() || m_expression.matchView(text).hasMatch());
}
