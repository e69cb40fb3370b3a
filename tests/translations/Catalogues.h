#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <set>
#include <string>
#include <utility>

/// A text and its comment.
using Source = std::pair<std::string, std::string>;

/// Paths of the catalogues as they are written, by language.
std::map<std::string, QString> Catalogues();

/// The translations in a catalogue under `context`.
std::map<Source, QString> EntriesOf(const QString& catalogue, const QString& context);

/// All contexts of a catalogue, in order.
QStringList ContextsOf(const QString& catalogue);

/// What the sources in a folder of the tree ask VQ_GetTranslation() for, directly or as the name of a key.
/// An empty `folder` is the top of the tree without what lies below.
std::set<Source> LiteralsIn(const QString& folder);

/// Path of the compiled catalogue of a language.
QString CompiledCatalogue(const QString& language);

/// Fails the running test unless each catalogue has, under `context`, a text for each row of `table` and no
/// other.
void ExpectTranslated(const QString& context, const std::set<Source>& table);
