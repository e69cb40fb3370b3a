#include "bench/ModelRows.h"

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QHash<int, QByteArray>& picture_roles()
{
    static const QHash<int, QByteArray> names{{NameRole, "name"},
                                              {FolderRole, "folder"},
                                              {KindRole, "kind"},
                                              {SizeRole, "size"},
                                              {ChangedRole, "changed"}};
    return names;
}

QString two_digits(int number)
{
    return QString::number(number).rightJustified(2, u'0');
}

PictureRow make_row(int number, std::mt19937& random)
{
    static const QStringList kinds{u"tif"_s, u"jpeg"_s, u"png"_s, u"psd"_s};
    const auto any
        = [&random](int least, int most) { return std::uniform_int_distribution<int>(least, most)(random); };
    const QString kind = kinds[any(0, 3)];
    const QString day
        = u"20"_s + two_digits(any(10, 25)) + u'-' + two_digits(any(1, 12)) + u'-' + two_digits(any(1, 28));
    return {u"picture_"_s + QString::number(number).rightJustified(6, u'0') + u'.' + kind,
            u"/archive/"_s + day.left(4) + u"/session "_s + two_digits(any(1, 40)), kind, any(1000, 90000000),
            day};
}

}

std::vector<PictureRow> MakePictureRows(int count)
{
    std::mt19937 random(1);
    std::vector<PictureRow> rows;
    for (int number = 0; number < count; ++number)
        rows.push_back(make_row(number, random));
    std::shuffle(rows.begin(), rows.end(), random);
    return rows;
}

PictureRows::PictureRows(int count) : m_rows(MakePictureRows(count)) { }

int PictureRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant PictureRows::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const PictureRow& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case NameRole:
        return row.name;
    case FolderRole:
        return row.folder;
    case KindRole:
        return row.kind;
    case SizeRole:
        return row.size;
    case ChangedRole:
        return row.changed;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> PictureRows::roleNames() const
{
    return picture_roles();
}

PictureMaps::PictureMaps(int count)
{
    for (const PictureRow& row : MakePictureRows(count)) {
        rows += QVariantMap{{u"name"_s, row.name},
                            {u"folder"_s, row.folder},
                            {u"kind"_s, row.kind},
                            {u"size"_s, row.size},
                            {u"changed"_s, row.changed}};
    }
}

QHash<int, QByteArray> PictureMaps::roleNames() const
{
    return picture_roles();
}

void PictureMaps::Update(QVariant) { }
