#pragma once

#include "gallery/keys/KeyListModel.h"
#include "gallery/keys/MenuKeys.h"

#include <optional>

namespace Gallery {

/// Changes the keys of one command after the other, and asks before another command loses one.
class KeyEditor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Gallery::KeyListModel* commands READ Commands CONSTANT)
    Q_PROPERTY(QString command READ Command WRITE SetCommand NOTIFY Changed)
    Q_PROPERTY(QString label READ Label NOTIFY Changed)
    Q_PROPERTY(QString place READ Place NOTIFY Changed)
    Q_PROPERTY(QStringList keys READ KeyTexts NOTIFY Changed)
    Q_PROPERTY(bool own READ IsOwn NOTIFY Changed)
    Q_PROPERTY(int ownCount READ OwnCount NOTIFY Changed)
    Q_PROPERTY(QString question READ Question NOTIFY Changed)
    Q_PROPERTY(QString told READ Told NOTIFY Changed)

public:
    /// `menu`, which was built from `document`, must outlive the editor.
    KeyEditor(CVqQuickMenu& menu, const MenuDocument& document, QObject* parent = nullptr);

    KeyListModel* Commands() { return &m_commands; }

    /// The command whose keys are changed; empty for none.
    const QString& Command() const { return m_command; }
    /// An unknown command is none. What was asked is left.
    void SetCommand(const QString& command);

    QString Label() const;
    QString Place() const;
    QStringList KeyTexts() const;
    /// Its keys are not those of the factory menu.
    bool IsOwn() const;
    /// How many commands have other keys than in the factory menu.
    int OwnCount() const { return m_commands.OwnCount(); }

    /// Which command has the key that was pressed; empty while nothing is asked.
    QString Question() const;

    /// What the last change came to, a sentence; empty before the first and with another command.
    const QString& Told() const { return m_told; }

    /// Gives the command the key that was pressed, unless another one has it: that is asked first. `flags` as
    /// VqVirtualKey() tells them.
    Q_INVOKABLE void press(uint flags, uint key);

    /// The two answers to the question.
    Q_INVOKABLE void takeOver();
    Q_INVOKABLE void leave();

    /// Takes the key at `index` of keys away.
    Q_INVOKABLE void remove(int index);

    /// Gives the command its factory keys, but for those that another one has now.
    Q_INVOKABLE void reset();

    /// Gives all commands their factory keys.
    Q_INVOKABLE void resetAll();

Q_SIGNALS:
    void Changed();
    /// The menu has other keys.
    void KeysChanged();

private:
    const KeyCommand* current() const { return m_commands.Find(m_command); }
    QString holder_label() const;
    void add(const MenuKey& key);
    void tell(const QString& sentence);
    void tell_new_keys(const QString& sentence);

    MenuKeys m_keys;
    QHash<vq_uint32, QList<MenuKey>> m_factory_keys;
    KeyListModel m_commands;
    QString m_command;
    std::optional<MenuKey> m_asked;
    QString m_told;
};

}
