#pragma once

#include <QQmlAbstractUrlInterceptor>
#include <QStringList>

namespace Gallery {

/// Hands the address of each file that an engine loads to FindQmlResource(). With the developer's mode on the
/// gallery's QML files, and the types that they use of each other, so come from the source tree.
///
/// To be given to the engine with addUrlInterceptor() before the first file; must outlive the engine. The
/// engine asks from its loading thread while the GUI thread waits for it.
class LiveAddresses : public QQmlAbstractUrlInterceptor
{
public:
    QUrl intercept(const QUrl& url, DataType type) override;
};

/// Reads the gallery's QML files from `folder`, a copy of gallery/, in place of the source tree; only in the
/// developer's mode. What `folder` lacks comes from the compiled resources. Counts for the whole process.
void ReadQmlFrom(const QString& folder);

/// The folders on disk that the gallery's QML files come from; none without the developer's mode.
QStringList LiveFolders();

}
