#include "tests/qml/NamedRows.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <future>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

// True if the model is locked, asked by a thread of its own: the lock lets its holder in again.
bool is_locked(NamedRows& model)
{
    bool locked = true;
    std::thread([&model, &locked] {
        locked = !model.mutex.try_lock();
        if (!locked)
            model.mutex.unlock();
    }).join();
    return locked;
}

/// Asks whether it is locked when its roles are wanted, and when a row moves.
class AskingRows : public NamedRows
{
public:
    using NamedRows::moveRow;
    using NamedRows::NamedRows;

    QHash<int, QByteArray> roleNames() const override
    {
        was_locked = is_locked(const_cast<AskingRows&>(*this));
        return NamedRows::roleNames();
    }

    bool moveRow(const QModelIndex&, int, const QModelIndex&, int) override
    {
        was_locked = is_locked(*this);
        return true;
    }

    mutable bool was_locked = false;
};

struct Change
{
    const char* name;
    std::function<void(NamedRows&)> run;
    int signals_sent;
};

std::string name_of(const testing::TestParamInfo<Change>& info)
{
    return info.param.name;
}

class AnnouncedChange : public testing::TestWithParam<Change>
{ };
class CallWithoutTheLock : public testing::TestWithParam<Change>
{ };
class CallUnderTheLock : public testing::TestWithParam<Change>
{ };

}

TEST_P(AnnouncedChange, IsAnnouncedWithTheLockHeld)
{
    NamedRows model({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    int under_the_lock = 0;
    const auto count = [&] { under_the_lock += is_locked(model); };
    using Model = QAbstractItemModel;
    QObject::connect(&model, &Model::rowsAboutToBeInserted, &model, count);
    QObject::connect(&model, &Model::rowsInserted, &model, count);
    QObject::connect(&model, &Model::rowsAboutToBeRemoved, &model, count);
    QObject::connect(&model, &Model::rowsRemoved, &model, count);
    QObject::connect(&model, &Model::rowsAboutToBeMoved, &model, count);
    QObject::connect(&model, &Model::rowsMoved, &model, count);
    QObject::connect(&model, &Model::modelAboutToBeReset, &model, count);
    QObject::connect(&model, &Model::modelReset, &model, count);
    QObject::connect(&model, &Model::dataChanged, &model, count);

    GetParam().run(model);

    EXPECT_EQ(under_the_lock, GetParam().signals_sent);
}

TEST_P(AnnouncedChange, GivesTheLockBack)
{
    NamedRows model({u"a"_s, u"b"_s, u"c"_s, u"d"_s});

    GetParam().run(model);

    EXPECT_FALSE(is_locked(model));
}

INSTANTIATE_TEST_SUITE_P(
    CVqQtAbstractListModelLock, AnnouncedChange,
    testing::Values(
        Change{"InsertRows", [](NamedRows& model) { model.insertRows(1, 1); }, 2},
        Change{"RemoveRows", [](NamedRows& model) { model.removeRows(1, 1); }, 2},
        Change{"ShortMoveRow", [](NamedRows& model) { model.moveRow(0, 2); }, 2},
        Change{"LongMoveRow", [](NamedRows& model) { model.moveRow(QModelIndex(), 0, QModelIndex(), 2); }, 2},
        Change{"Clear", [](NamedRows& model) { model.Clear(); }, 2},
        Change{"SetData", [](NamedRows& model) { model.setData(model.index(0), 7, NamedRows::Size); }, 1},
        Change{"NothingForARefusal", [](NamedRows& model) { model.insertRows(9, 1); }, 0}),
    name_of);

TEST(CVqQtAbstractListModelLock, DataAsksForTheNamesWithTheLockHeld)
{
    const AskingRows model({u"sky"_s});

    model.data(model.index(0), NamedRows::Name);

    EXPECT_TRUE(model.was_locked);
}

TEST(CVqQtAbstractListModelLock, TranslateRoleAsksForTheNamesWithTheLockHeld)
{
    AskingRows model;

    model.TranslateRole(u"name"_s);

    EXPECT_TRUE(model.was_locked);
}

TEST(CVqQtAbstractListModelLock, SetDataAsksForTheNamesWithTheLockHeld)
{
    AskingRows model({u"sky"_s});

    model.setData(model.index(0), 1, NamedRows::Size);

    EXPECT_TRUE(model.was_locked);
}

TEST(CVqQtAbstractListModelLock, TheShortMoveCallsTheLongOneWithTheLockHeld)
{
    AskingRows model;

    model.moveRow(2, 2);

    EXPECT_TRUE(model.was_locked);
}

TEST(CVqQtAbstractListModelLock, ASlotMayCallTheModel)
{
    NamedRows model({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model, [&model] { model.Clear(); });

    model.insertRows(0, 1);

    EXPECT_EQ(model.rowCount(), 0);
}

TEST_P(CallWithoutTheLock, ReturnsWhileAnotherThreadHoldsIt)
{
    NamedRows model({u"a"_s, u"b"_s});
    std::unique_lock lock(model.mutex);

    std::future<void> call = std::async(std::launch::async, GetParam().run, std::ref(model));

    EXPECT_EQ(call.wait_for(std::chrono::seconds(20)), std::future_status::ready);
    lock.unlock(); // so that a call that does wait comes back
}

INSTANTIATE_TEST_SUITE_P(
    CVqQtAbstractListModelLock, CallWithoutTheLock,
    testing::Values(Change{"CountOfARow", [](NamedRows& model) { model.rowCount(model.createdIndex(0)); }, 0},
                    Change{"SetDataOfAnInvalidIndex",
                           [](NamedRows& model) { model.setData(QModelIndex(), 1, NamedRows::Size); }, 0},
                    Change{"SetDataOfAnInvalidValue",
                           [](NamedRows& model) {
                               model.setData(model.createdIndex(0), QVariant(), NamedRows::Size);
                           },
                           0},
                    Change{"LongMoveToItsOwnPlace",
                           [](NamedRows& model) { model.moveRow(QModelIndex(), 1, QModelIndex(), 1); }, 0}),
    name_of);

// A call that does not wait comes back long before the time is over; one that waits never does.
TEST_P(CallUnderTheLock, WaitsWhileAnotherThreadHoldsIt)
{
    NamedRows model({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    std::unique_lock lock(model.mutex);

    std::future<void> call = std::async(std::launch::async, GetParam().run, std::ref(model));

    EXPECT_EQ(call.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
    lock.unlock();
}

INSTANTIATE_TEST_SUITE_P(
    CVqQtAbstractListModelLock, CallUnderTheLock,
    testing::Values(Change{"RowCount", [](NamedRows& model) { model.rowCount(); }, 0},
                    Change{"ColumnCount", [](NamedRows& model) { model.columnCount(); }, 0},
                    Change{"RefusedInsertion", [](NamedRows& model) { model.insertRows(-1, 1); }, 0},
                    Change{"RefusedRemoval", [](NamedRows& model) { model.removeRows(-1, 1); }, 0},
                    Change{"RefusedMove",
                           [](NamedRows& model) { model.moveRow(QModelIndex(), -1, QModelIndex(), 1); }, 0},
                    Change{"ShortMoveToItsOwnPlace", [](NamedRows& model) { model.moveRow(1, 1); }, 0}),
    name_of);

// The other thread would see one of the many counts in between if the count did not wait for the lock.
TEST(CVqQtAbstractListModelLock, AnotherThreadNeverSeesRowsInTheMiddleOfAChange)
{
    NamedRows model({u"a"_s, u"b"_s});
    std::atomic<bool> ended = false;
    std::atomic<int> wrong = 0;
    std::thread reader([&] {
        while (!ended)
            wrong += model.rowCount() != 2;
    });

    for (int turn = 0; turn < 2000; ++turn) {
        const std::lock_guard lock(model.mutex);
        const QList<QVariant> rows = model.rows;
        model.rows.clear();
        model.rows = rows + rows;
        model.rows = rows;
    }
    ended = true;
    reader.join();

    EXPECT_EQ(wrong, 0);
}

namespace {

void change_often(NamedRows& model, int turns)
{
    for (int turn = 0; turn < turns; ++turn) {
        model.Append(QString::number(turn), turn);
        model.insertRows(turn % 5, 2);
        model.moveRow(turn % 7, turn % 3);
        model.setData(model.index(turn % 4), turn, NamedRows::Size);
        model.removeRows(turn % 3, 2);
        if (turn % 50 == 49)
            model.Clear();
    }
}

// A row is either filled or empty, never half of it.
bool reads_whole_rows(NamedRows& model)
{
    const int role = model.TranslateRole(u"name"_s);
    for (int row = 0; row < model.rowCount(); ++row) {
        const QVariant name = model.data(model.index(row), role);
        if (name.isValid() && name.toString().isEmpty())
            return false;
    }
    return role == NamedRows::Name;
}

}

TEST(CVqQtAbstractListModelLock, TwoThreadsMayChangeTheRowsWhileAThirdReads)
{
    NamedRows model;
    std::atomic<bool> ended = false;
    std::atomic<bool> whole = true;
    std::thread reader([&] {
        while (!ended)
            whole = whole && reads_whole_rows(model);
    });
    std::thread other([&] { change_often(model, 400); });

    change_often(model, 400);
    other.join();
    ended = true;
    reader.join();

    EXPECT_TRUE(whole);
}
