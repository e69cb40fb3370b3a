#pragma once

#include <QAbstractItemModel>

#include <string>
#include <vector>

/// Writes down what a model announces, each signal as a line of text.
///
///     const ModelSignals log(model);
///     model.moveRow(0, 2);
///     EXPECT_EQ(log.Lines(), Lines({"about to move 0 to 3", "moved 0 to 3"}));
class ModelSignals : public QObject
{
public:
    using Strings = std::vector<std::string>;

    explicit ModelSignals(const QAbstractItemModel& model)
    {
        using Model = QAbstractItemModel;
        LogRange(model, &Model::rowsAboutToBeInserted, "about to insert");
        LogRange(model, &Model::rowsInserted, "inserted");
        LogRange(model, &Model::rowsAboutToBeRemoved, "about to remove");
        LogRange(model, &Model::rowsRemoved, "removed");
        LogMove(model, &Model::rowsAboutToBeMoved, "about to move");
        LogMove(model, &Model::rowsMoved, "moved");
        connect(&model, &Model::modelAboutToBeReset, this,
                [this] { m_lines.emplace_back("about to reset"); });
        connect(&model, &Model::modelReset, this, [this] { m_lines.emplace_back("reset"); });
        connect(&model, &Model::dataChanged, this, [this](auto& first, auto& last, auto& roles) {
            m_lines.push_back("changed " + Range(first.row(), last.row()));
            for (const int role : roles)
                m_lines.back() += " role " + std::to_string(role);
        });
    }

    const Strings& Lines() const { return m_lines; }

private:
    template <typename Signal>
    void LogRange(const QAbstractItemModel& model, Signal signal, const std::string& what)
    {
        connect(&model, signal, this, [this, what](const QModelIndex& parent, int first, int last) {
            m_lines.push_back(what + " " + Range(first, last) + Under(parent));
        });
    }

    template <typename Signal>
    void LogMove(const QAbstractItemModel& model, Signal signal, const std::string& what)
    {
        const auto log
            = [this, what](const QModelIndex& from, int first, int last, const QModelIndex& to, int place) {
                  m_lines.push_back(what + " " + Range(first, last) + Under(from) + " to "
                                    + std::to_string(place) + Under(to));
              };
        connect(&model, signal, this, log);
    }

    static std::string Range(int first, int last)
    {
        return first == last ? std::to_string(first) : std::to_string(first) + "-" + std::to_string(last);
    }

    static std::string Under(const QModelIndex& parent)
    {
        return parent.isValid() ? " under " + std::to_string(parent.row()) : "";
    }

    Strings m_lines;
};
