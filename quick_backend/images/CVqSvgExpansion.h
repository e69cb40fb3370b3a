#pragma once

#include <QHash>
#include <QMultiHash>
#include <QString>
#include <QStringList>

#include <vector>

class QXmlStreamAttributes;

/// How much an SVG draws once its references are followed. A text of a few lines, whose groups use each
/// other ten times each, would otherwise keep a program busy for days.
///
/// Elements and styles are told in the order of the text.
class CVqSvgExpansion
{
public:
    /// `name` is without its prefix.
    void Enter(QStringView name, const QXmlStreamAttributes& attributes);
    void Leave();

    /// The whole text of a style element.
    void AddStyle(const QString& style);

    /// False where references add more than 100,000 elements, follow one another more than 30 times or lead
    /// in a circle, and where elements are nested deeper than 1,000 levels.
    bool IsBounded() const;

private:
    struct SVqReferences
    {
        void Add(const QString& property, const QString& value);

        QStringList ids;        // drawn once
        QStringList marker_ids; // drawn at each point of a path
    };

    struct SVqElement
    {
        SVqReferences references;
        QStringList classes;
        std::vector<int> children;
        qsizetype path_size = 0; // units of path text, in the children too
        bool is_gradient = false;
    };

    class Sum;

    std::vector<SVqElement> m_elements;
    std::vector<int> m_open;
    QMultiHash<QString, int> m_elements_by_id;
    QHash<QString, SVqReferences> m_styles; // by class; those of the empty one are for all elements
    bool m_is_too_deep = false;
};
