#include "AbstractGui/CVqAccelerators.h"
#include "system/CVqStringW.h"

#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QKeySequence>
#include <private/qshortcutmap_p.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>

// Key texts against QKeySequence, and looking a pressed key up against QShortcutMap, a QHash and a plain
// walk. Every program of a group gets the same keys in the same order.

namespace {

using namespace Qt::StringLiterals;

// One key in the forms that the sides want.
struct Key
{
    vq_uint32 flags;
    vq_wchar key;
    QKeyCombination combination;
};

struct KeyText
{
    CVqStringW text;
    QString qt_text;
    Key key;
    QKeySequence sequence;
};

Qt::KeyboardModifiers modifiers_of(vq_uint32 flags)
{
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::AltModifier, flags & 1);
    modifiers.setFlag(Qt::ControlModifier, flags & 2);
    modifiers.setFlag(Qt::ShiftModifier, flags & 4);
    return modifiers;
}

QStringList key_names()
{
    QStringList names
        = u"Backspace Tab Enter Esc Space End Home Left Up Right Down Insert Delete"_s.split(u' ');
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
        names += QString(QChar(letter));
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        names += QString(QChar(digit));
    for (int number = 1; number <= 24; ++number)
        names += u'F' + QString::number(number);
    return names;
}

KeyText key_text(vq_uint32 flags, const QString& name)
{
    KeyText result;
    result.qt_text = QLatin1StringView(flags & 2 ? "Ctrl+" : "") + QLatin1StringView(flags & 1 ? "Alt+" : "")
        + QLatin1StringView(flags & 4 ? "Shift+" : "") + name;
    result.text = CVqStringW::FromQString(result.qt_text);
    result.sequence = QKeySequence::fromString(result.qt_text, QKeySequence::NativeText);
    const bool ours = CVqAccelerators::ParseAccel(result.text, &result.key.flags, &result.key.key);
    if (!ours || result.sequence.isEmpty() || result.sequence[0].key() == Qt::Key_unknown)
        std::abort();
    return result;
}

std::vector<KeyText> make_key_texts()
{
    std::vector<KeyText> texts;
    for (vq_uint32 flags = 0; flags < 8; ++flags) {
        for (const QString& name : key_names())
            texts.push_back(key_text(flags, name));
    }
    std::shuffle(texts.begin(), texts.end(), std::mt19937(1));
    texts.resize(300);
    return texts;
}

const std::vector<KeyText>& key_texts()
{
    static const std::vector<KeyText> texts = make_key_texts();
    return texts;
}

// `count` different keys, each with one of the eight sets of modifiers, in random order.
std::vector<Key> make_keys(int count, vq_wchar first)
{
    std::vector<Key> keys;
    for (int number = 0; number < count; ++number) {
        const vq_uint32 flags = static_cast<vq_uint32>(number % 8);
        const vq_wchar key = static_cast<vq_wchar>(first + number / 8);
        keys.push_back({flags | 16, key, QKeyCombination(modifiers_of(flags), Qt::Key(key))});
    }
    std::shuffle(keys.begin(), keys.end(), std::mt19937(2));
    return keys;
}

// Parse and print --------------------------------------------------------------------------------------

template <class Use>
void each_text(benchmark::State& state, Use use)
{
    for (auto _ : state) {
        for (const KeyText& text : key_texts())
            use(text);
    }
}

void read_arbor(const KeyText& text)
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    benchmark::DoNotOptimize(CVqAccelerators::ParseAccel(text.text, &flags, &key));
    benchmark::DoNotOptimize(flags);
    benchmark::DoNotOptimize(key);
}

void print_arbor(const KeyText& text)
{
    vq_wchar area[512];
    CVqAccelerators::PrintAccel(text.key.flags, text.key.key, area);
    benchmark::DoNotOptimize(area);
}

template <QKeySequence::SequenceFormat format>
void read_qt(const KeyText& text)
{
    benchmark::DoNotOptimize(QKeySequence::fromString(text.qt_text, format));
}

template <QKeySequence::SequenceFormat format>
void print_qt(const KeyText& text)
{
    benchmark::DoNotOptimize(text.sequence.toString(format));
}

// Looking up -------------------------------------------------------------------------------------------

class ArborTable
{
public:
    void Add(const Key& key, vq_uint32 id) { m_table.AddAccelKey(id, key.flags, key.key, 0); }

    bool Find(const Key& key)
    {
        vq_uint64 target = 0;
        vq_uint32 id = 0;
        const bool found = m_table.Translate(key.key, key.flags & 7, target, id);
        benchmark::DoNotOptimize(id);
        return found;
    }

private:
    CVqAccelerators m_table;
};

class HashTable
{
public:
    void Add(const Key& key, vq_uint32 id) { m_table.insert(key.combination, id); }

    bool Find(const Key& key)
    {
        const auto found = m_table.constFind(key.combination);
        if (found == m_table.constEnd())
            return false;
        vq_uint32 id = *found;
        benchmark::DoNotOptimize(id);
        return true;
    }

private:
    QHash<QKeyCombination, vq_uint32> m_table;
};

class WalkTable
{
public:
    void Add(const Key& key, vq_uint32 id) { m_table.push_back({key.flags, key.key, id}); }

    bool Find(const Key& key)
    {
        const auto found = std::find_if(m_table.begin(), m_table.end(), [&key](const Record& record) {
            return record.flags == key.flags && record.key == key.key;
        });
        if (found == m_table.end())
            return false;
        vq_uint32 id = found->id;
        benchmark::DoNotOptimize(id);
        return true;
    }

private:
    struct Record
    {
        vq_uint32 flags;
        vq_wchar key;
        vq_uint32 id;
    };

    std::vector<Record> m_table;
};

class ShortcutTable
{
public:
    void Add(const Key& key, vq_uint32)
    {
        m_map.addShortcut(&m_owner, QKeySequence(key.combination), Qt::WindowShortcut,
                          [](QObject*, auto) { return true; });
    }

    bool Find(QKeyEvent& event) { return m_map.tryShortcut(&event); }

private:
    QObject m_owner;
    QShortcutMap m_map;
};

bool find(ShortcutTable& table, const Key&, QKeyEvent& event)
{
    return table.Find(event);
}

template <class Table>
bool find(Table& table, const Key& key, QKeyEvent&)
{
    return table.Find(key);
}

std::vector<std::unique_ptr<QKeyEvent>> make_events(const std::vector<Key>& keys)
{
    std::vector<std::unique_ptr<QKeyEvent>> events;
    for (const Key& key : keys) {
        events.push_back(std::make_unique<QKeyEvent>(QEvent::ShortcutOverride, key.combination.key(),
                                                     key.combination.keyboardModifiers()));
    }
    return events;
}

constexpr vq_wchar first_key = 0x4E00;  // letters without case, so that Qt takes them as they are
constexpr vq_wchar first_miss = 0x6000; // behind the keys of the largest table

template <class Table>
void translate(benchmark::State& state, int count, bool hit)
{
    const std::vector<Key> keys = make_keys(count, first_key);
    Table table;
    vq_uint32 id = 0;
    for (const Key& key : keys)
        table.Add(key, ++id);
    std::vector<Key> pressed = hit ? keys : make_keys(count, first_miss);
    std::shuffle(pressed.begin(), pressed.end(), std::mt19937(3));
    const auto events = make_events(pressed);
    for (std::size_t at = 0; at < pressed.size(); ++at) {
        if (find(table, pressed[at], *events[at]) != hit)
            std::abort();
    }

    std::size_t at = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(find(table, pressed[at], *events[at]));
        at = at + 1 == pressed.size() ? 0 : at + 1;
    }
}

template <class Table>
void register_translate(const std::string& group, const char* side, int count, bool hit)
{
    benchmark::RegisterBenchmark(group + "/" + side, translate<Table>, count, hit);
}

void register_lookups(int count, bool hit)
{
    const std::string group = "Translate" + std::to_string(count) + (hit ? "Hit" : "Miss");
    register_translate<ArborTable>(group, "Arbor", count, hit);
    register_translate<HashTable>(group, "QHash", count, hit);
    register_translate<WalkTable>(group, "LinearWalk", count, hit);
    register_translate<ShortcutTable>(group, "QShortcutMap", count, hit);
}

void register_texts()
{
    const auto add = [](const char* name, void (*use)(const KeyText&)) {
        benchmark::RegisterBenchmark(name, each_text<void (*)(const KeyText&)>, use);
    };
    add("Parse/Arbor", read_arbor);
    add("Parse/QKeySequenceNative", read_qt<QKeySequence::NativeText>);
    add("Parse/QKeySequencePortable", read_qt<QKeySequence::PortableText>);
    add("Print/Arbor", print_arbor);
    add("Print/QKeySequenceNative", print_qt<QKeySequence::NativeText>);
    add("Print/QKeySequencePortable", print_qt<QKeySequence::PortableText>);
}

}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    register_texts();
    for (const int count : {50, 500, 5000}) {
        register_lookups(count, true);
        register_lookups(count, false);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
