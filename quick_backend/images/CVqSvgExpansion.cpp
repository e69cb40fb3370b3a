#include "quick_backend/images/CVqSvgExpansion.h"

#include <QRegularExpression>
#include <QXmlStreamAttributes>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t g_most_levels = 1000; // Qt Svg takes about twice as many
constexpr int g_most_in_a_row = 30;
constexpr qint64 g_most_added = 100'000;

QStringList captured(const QRegularExpression& expression, const QString& text)
{
    QStringList found;
    auto matches = expression.globalMatch(text);
    while (matches.hasNext())
        found += matches.next().captured(1);
    return found;
}

QStringList class_names(const QString& selector)
{
    static const QRegularExpression name(uR"(\.([^\s.,:#>+~*\[]+))"_s);
    const QStringList names = captured(name, selector);
    return names.isEmpty() ? QStringList{QString()} : names;
}

}

void CVqSvgExpansion::SVqReferences::Add(const QString& property, const QString& value)
{
    static const QRegularExpression url(uR"(url\s*\(\s*["']?\s*#([^\s"')]+))"_s,
                                        QRegularExpression::CaseInsensitiveOption);
    constexpr auto marker = "marker"_L1;
    const bool is_marker = property.startsWith(marker) || value.contains(marker, Qt::CaseInsensitive);
    (is_marker ? marker_ids : ids) += captured(url, value);
}

void CVqSvgExpansion::Enter(QStringView name, const QXmlStreamAttributes& attributes)
{
    const int number = int(m_elements.size());
    SVqElement element;
    element.is_gradient = name == "linearGradient"_L1 || name == "radialGradient"_L1;
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QString property = attribute.name().toString();
        const QString value = attribute.value().toString();
        if (property == "id"_L1)
            m_elements_by_id.insert(value, number);
        else if (property == "class"_L1)
            element.classes = value.simplified().split(u' ');
        else if (property == "d"_L1 || property == "points"_L1)
            element.path_size += value.size();
        else if (property == "href"_L1 && name == "use"_L1)
            element.references.ids += value.trimmed().mid(1);
        else
            element.references.Add(property, value);
    }
    if (!m_open.empty())
        m_elements[std::size_t(m_open.back())].children.push_back(number);
    m_elements.push_back(std::move(element));
    m_open.push_back(number);
    m_is_too_deep = m_is_too_deep || m_open.size() > g_most_levels;
}

void CVqSvgExpansion::Leave()
{
    const qsizetype path_size = m_elements[std::size_t(m_open.back())].path_size;
    m_open.pop_back();
    if (!m_open.empty())
        m_elements[std::size_t(m_open.back())].path_size += path_size;
}

void CVqSvgExpansion::AddStyle(const QString& style)
{
    static const QRegularExpression rule(u"([^{}]*)\\{([^{}]*)\\}"_s);
    auto rules = rule.globalMatch(style);
    while (rules.hasNext()) {
        const QRegularExpressionMatch match = rules.next();
        for (const QString& name : class_names(match.captured(1)))
            m_styles[name].Add(QString(), match.captured(2));
    }
}

/// Adds up what elements draw, each of them once.
class CVqSvgExpansion::Sum
{
public:
    explicit Sum(const CVqSvgExpansion& text)
        : m_text(text),
          m_results(text.m_elements.size()),
          m_most(qint64(text.m_elements.size()) + g_most_added)
    { }

    /// False as soon as it is too much.
    bool Visit(int number, std::size_t level)
    {
        SVqResult& result = m_results[std::size_t(number)];
        if (result.state != State::New || level > g_most_levels)
            return result.state == State::Done;
        result.state = State::Open;
        const SVqElement& element = m_text.m_elements[std::size_t(number)];
        // A gradient is no drawing of its own.
        if (!element.is_gradient && !AddContent(result, element, level + 1))
            return false;
        result.state = State::Done;
        return true;
    }

private:
    enum class State
    {
        New,
        Open,
        Done,
    };

    struct SVqResult
    {
        State state = State::New;
        int in_a_row = 0;
        qint64 drawn = 0;
    };

    bool AddContent(SVqResult& result, const SVqElement& element, std::size_t level)
    {
        result.drawn = 1;
        const auto add_child = [&](int child) { return Add(result, child, 1, 0, level); };
        const auto add_style = [&](const QString& name) {
            const auto found = m_text.m_styles.constFind(name);
            return found == m_text.m_styles.constEnd() || AddReferences(result, *found, element, level);
        };
        return std::ranges::all_of(element.children, add_child)
            && AddReferences(result, element.references, element, level)
            && std::ranges::all_of(element.classes, add_style) && add_style(QString());
    }

    bool AddReferences(SVqResult& result, const SVqReferences& references, const SVqElement& element,
                       std::size_t level)
    {
        const qsizetype points = 1 + element.path_size / 4;
        return AddIds(result, references.ids, 1, level)
            && AddIds(result, references.marker_ids, points, level);
    }

    bool AddIds(SVqResult& result, const QStringList& ids, qsizetype times, std::size_t level)
    {
        return std::ranges::all_of(ids, [&](const QString& id) {
            const auto [first, last] = m_text.m_elements_by_id.equal_range(id);
            return std::all_of(first, last, [&](int number) { return Add(result, number, times, 1, level); });
        });
    }

    bool Add(SVqResult& result, int number, qsizetype times, int steps, std::size_t level)
    {
        if (!Visit(number, level))
            return false;
        const SVqResult& other = m_results[std::size_t(number)];
        result.drawn += times * other.drawn;
        result.in_a_row = std::max(result.in_a_row, other.in_a_row + steps);
        return result.drawn <= m_most && result.in_a_row <= g_most_in_a_row;
    }

    const CVqSvgExpansion& m_text;
    std::vector<SVqResult> m_results;
    const qint64 m_most;
};

bool CVqSvgExpansion::IsBounded() const
{
    return !m_is_too_deep && (m_elements.empty() || Sum(*this).Visit(0, 0));
}
