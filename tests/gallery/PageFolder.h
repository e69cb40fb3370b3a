#pragma once

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

/// A folder for the files that a test draws, gone with the test.
class PageFolder
{
public:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    /// Writes a file; the path of it.
    QString Write(const QString& name, const QByteArray& text) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }

    /// Writes a QML file; its address. An engine keeps what it has loaded, so a second page takes another
    /// name.
    QUrl Page(const QByteArray& qml, const QString& name = QStringLiteral("page.qml")) const
    {
        return QUrl::fromLocalFile(Write(name, qml));
    }

    /// Writes a picture of one colour.
    void Picture(const QString& name, const QSize& size, const QColor& color) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        EXPECT_TRUE(image.save(Path(name)));
    }

private:
    QTemporaryDir m_folder;
};
