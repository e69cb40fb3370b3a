#pragma once

#include <QList>
#include <QObject>
#include <QRegularExpression>
#include <QString>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QModelIndex;
QT_END_NAMESPACE

/// What a filter knows of one source while it goes through the rows: the expression and the numbers of the
/// roles that it looks into. Both stay the same from row to row, so they are worked out once.
///
/// A source may name its roles anew at any time, but the filter only runs when the filter itself or the
/// source has changed. So the numbers are forgotten with each change of the source.
class CVqRowFilter : public QObject
{
public:
    /// For the rows of `source`, which may be null.
    explicit CVqRowFilter(const QAbstractItemModel* source);

    /// The numbers of the roles are not certain any more.
    void Forget();

    /// True if the numbers of the roles are known, from a time when the expression was this one.
    bool IsReadyFor(const QRegularExpression& expression) const;

    /// An invalid expression matches nothing.
    void Prepare(const QRegularExpression& expression, const QList<int>& roles);

    /// True if the value of one of the roles, as a text, contains a match. They are asked in their order, up
    /// to the first that does.
    bool Accepts(const QModelIndex& row) const;

private:
    bool Matches(const QString& text) const;

    QRegularExpression m_expression;
    bool m_valid = true; ///< The expression is, as the empty one.
    QString m_literal;   ///< The text that the expression stands for; empty where it stands for more.
    QList<int> m_roles;
    bool m_rolesKnown = false;
};
