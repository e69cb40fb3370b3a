#include "gallery/keys/KeyEditor.h"

#include "gallery/keys/OwnKeys.h"
#include "gallery/menu/KeyText.h"
#include "quick_backend/CVqQuickMenu.h"

#include <utility>

namespace Gallery {

KeyEditor::KeyEditor(CVqQuickMenu& menu, const MenuDocument& document, QObject* parent)
    : QObject(parent), m_keys(menu), m_factory_keys(FactoryKeys(document)), m_commands(menu, document)
{ }

void KeyEditor::SetCommand(const QString& command)
{
    const QString known = m_commands.Find(command) ? command : QString();
    if (known == m_command)
        return;
    m_command = known;
    m_asked.reset();
    tell({});
}

QString KeyEditor::Label() const
{
    return current() ? current()->label : QString();
}

QString KeyEditor::Place() const
{
    return current() ? current()->place : QString();
}

QStringList KeyEditor::KeyTexts() const
{
    QStringList texts;
    if (current())
        for (const MenuKey& key : m_commands.KeysOf(*current()))
            texts << PrintKey(key);
    return texts;
}

bool KeyEditor::IsOwn() const
{
    return current() && m_commands.IsOwn(*current());
}

QString KeyEditor::Question() const
{
    return m_asked ? tr("%1 is the key of %2.").arg(PrintKey(*m_asked), holder_label()) : QString();
}

QString KeyEditor::holder_label() const
{
    const KeyCommand* holder = m_commands.Find(m_keys.HolderOf(*m_asked));
    return holder ? holder->label : QString();
}

void KeyEditor::press(uint flags, uint key)
{
    if (!current())
        return;
    const MenuKey pressed{flags | vq_accel_virtual_key, static_cast<vq_wchar>(key)};
    const vq_uint32 holder = m_keys.HolderOf(pressed);
    m_asked.reset();
    if (holder == 0) {
        add(pressed);
        tell_new_keys(tr("%1 has the key %2 now.").arg(Label(), PrintKey(pressed)));
    } else if (current()->ids.contains(holder)) {
        tell(tr("%1 has the key %2 already.").arg(Label(), PrintKey(pressed)));
    } else {
        m_asked = pressed;
        tell({});
    }
}

void KeyEditor::takeOver()
{
    if (!m_asked || !current())
        return;
    const QString holder = holder_label();
    const MenuKey key = *std::exchange(m_asked, std::nullopt);
    m_keys.Take(key);
    add(key);
    tell_new_keys(tr("%1 has the key %2 now, which was taken from %3.").arg(Label(), PrintKey(key), holder));
}

void KeyEditor::leave()
{
    if (!m_asked)
        return;
    const QString holder = holder_label();
    const MenuKey key = *std::exchange(m_asked, std::nullopt);
    tell(tr("%1 keeps the key %2.").arg(holder, PrintKey(key)));
}

void KeyEditor::remove(int index)
{
    const QList<MenuKey> keys = current() ? m_commands.KeysOf(*current()) : QList<MenuKey>();
    if (index < 0 || index >= keys.size())
        return;
    m_keys.Take(keys[index]);
    tell_new_keys(tr("%1 has lost the key %2.").arg(Label(), PrintKey(keys[index])));
}

void KeyEditor::reset()
{
    if (!current())
        return;
    QStringList elsewhere;
    for (const vq_uint32 id : current()->ids) {
        QList<MenuKey> keys = m_factory_keys.value(id);
        keys.removeIf([&](const MenuKey& key) {
            const vq_uint32 holder = m_keys.HolderOf(key);
            const bool is_free = holder == 0 || current()->ids.contains(holder);
            if (!is_free)
                elsewhere << PrintKey(key);
            return !is_free;
        });
        m_keys.Set(id, keys);
    }
    m_asked.reset();
    tell_new_keys(elsewhere.isEmpty()
                      ? tr("%1 has its factory keys again.").arg(Label())
                      : tr("%1 has its factory keys again, but for %2: another command has that.")
                            .arg(Label(), elsewhere.join(QStringLiteral(", "))));
}

void KeyEditor::resetAll()
{
    const QHash<vq_uint32, QList<MenuKey>> now = m_keys.All();
    for (auto holder = now.begin(); holder != now.end(); ++holder)
        if (!HasSameKeys(holder.value(), m_factory_keys.value(holder.key())))
            m_keys.Set(holder.key(), m_factory_keys.value(holder.key()));
    for (auto place = m_factory_keys.begin(); place != m_factory_keys.end(); ++place)
        if (!now.contains(place.key()))
            m_keys.Set(place.key(), place.value());
    m_asked.reset();
    tell_new_keys(tr("All commands have their factory keys."));
}

void KeyEditor::add(const MenuKey& key)
{
    const vq_uint32 id = current()->ids.constFirst();
    m_keys.Set(id, m_keys.All().value(id) + QList<MenuKey>{key});
}

void KeyEditor::tell(const QString& sentence)
{
    m_told = sentence;
    Q_EMIT Changed();
}

void KeyEditor::tell_new_keys(const QString& sentence)
{
    m_commands.Refresh();
    tell(sentence);
    Q_EMIT KeysChanged();
}

}
