#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"

#include <QAction>
#include <QApplication>
#include <QLayout>
#include <QToolBar>

#include <benchmark/benchmark.h>

#include <memory>

// A toolbar of 100 buttons with texts, moved through all widths from 1 to 2,000 pixels and laid out at each,
// against QToolBar with actions. Nothing is drawn, and ours has no looks: the time is that of the layout, in
// which ours moves its items into the picker and back and QToolBar hides its buttons.

namespace {

using namespace Qt::StringLiterals;

constexpr int g_buttons = 100;
constexpr int g_widths = 2000;
constexpr int g_height = 40;

QString label(int number)
{
    return u"Rotate "_s + QString::number(number);
}

class ArborBar
{
public:
    ArborBar()
    {
        for (int number = 0; number < g_buttons; ++number) {
            const CVqStringW text = CVqStringW::FromQString(label(number));
            m_bar.SetTextsOnButton(m_bar.AddTextButton(text), 0, VQ_TEXT(""), text, VQ_TEXT(""));
        }
    }

    void Resize(int width)
    {
        m_bar.Area()->setSize({qreal(width), qreal(g_height)});
        m_bar.Toolbar().Layout();
    }

    bool HidesSome() const { return m_bar.Toolbar().Picker()->IsShown(); }

private:
    CVqQuickButtonToolbar m_bar{VQ_TEXT("bar")};
};

class QtBar
{
public:
    QtBar()
    {
        for (int number = 0; number < g_buttons; ++number)
            m_last = m_bar->addAction(label(number));
        m_window.resize(g_widths, g_height);
        m_window.show(); // a hidden widget is told of its size only when it shows
    }

    void Resize(int width)
    {
        m_bar->resize(width, g_height);
        m_bar->layout()->activate();
    }

    bool HidesSome() const { return !m_bar->widgetForAction(m_last)->isVisible(); }

private:
    QWidget m_window;
    QToolBar* const m_bar = new QToolBar(&m_window); // owned by the window
    QAction* m_last = nullptr;                       // owned by the bar
};

template <class Bar>
void move_through_widths(benchmark::State& state)
{
    Bar bar;
    for (auto _ : state)
        for (int width = 1; width <= g_widths; ++width)
            bar.Resize(width);
    if (!bar.HidesSome())
        state.SkipWithError("everything fits");
}

}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::RegisterBenchmark("MoveThroughWidths/Arbor", move_through_widths<ArborBar>)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("MoveThroughWidths/QToolBar", move_through_widths<QtBar>)
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
