#include "gallery/script/KeyScript.h"

#include "gallery/Session.h"
#include "gallery/menu/MenuPath.h"
#include "quick_backend/CVqQuickMenuItem.h"

#include <QCoreApplication>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_most_levels = 32; // presses of Esc that surely leave every menu

}

QString KeyScript::Press(const KeyPress& press)
{
    return tell(press.name, [&] { SendKeyPress(press, m_window); });
}

QString KeyScript::Move(const MouseStep& step)
{
    bool is_there = true;
    const QString told = tell(step.name, [&] { is_there = SendMouseStep(step, m_session, m_window); });
    return is_there ? told : u"%1 -> nothing to see"_s.arg(step.name);
}

QString KeyScript::Do(const ScriptStep& step)
{
    const KeyPress* press = std::get_if<KeyPress>(&step);
    return press ? Press(*press) : Move(std::get<MouseStep>(step));
}

QString KeyScript::tell(const QString& name, const std::function<void()>& act)
{
    const QList<vq_uint32> before = OpenPopups();
    const QString fired = fire(act);
    if (!fired.isEmpty())
        return u"%1 -> %2"_s.arg(name, fired);
    if (!m_told.isEmpty())
        return u"%1 -> %2"_s.arg(name, m_told);
    for (const vq_uint32 popup : OpenPopups())
        if (!before.contains(popup))
            return u"%1 -> opens popup %2"_s.arg(name, PlainLabel(*m_session.Menu(), popup));
    return u"%1 -> no command"_s.arg(name);
}

QString KeyScript::fire(const std::function<void()>& act)
{
    QString fired;
    m_told.clear();
    QObject listener;
    QObject::connect(m_session.Menu(), &CVqQuickMenu::commandTriggered, &listener,
                     [&](uint id, const QString& command) { fired = u"%1 %2"_s.arg(id).arg(command); });
    const KeyEditor* editor = m_session.GetKeyEditor();
    QObject::connect(editor, &KeyEditor::Changed, &listener,
                     [this, editor] { m_told = editor->Question() + editor->Told(); });
    act();
    QCoreApplication::processEvents();
    return fired;
}

QList<vq_uint32> KeyScript::OpenPopups() const
{
    QList<vq_uint32> ids;
    for (const QObject* popup : m_window.findChildren<QObject*>(u"menuPopup"_s)) {
        const auto* rows = popup->property("rows").value<CVqQuickMenuRows*>();
        if (rows && popup->property("visible").toBool())
            ids << rows->ItemAt(0)->parentItem()->id();
    }
    return ids;
}

void KeyScript::CloseAll()
{
    const KeyPress escape = *ParseKeyPress(u"Esc"_s);
    for (int i = 0; i < g_most_levels && m_session.Menu()->IsTracking(); ++i) {
        SendKeyPress(escape, m_window);
        QCoreApplication::processEvents();
    }
}

}
