#include "AbstractGui/CVqAbstractMenu.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

#include <KAcceleratorManager>
#include <benchmark/benchmark.h>

#include <memory>

// Mnemonics for the labels of one popup, none of them marked, against KAcceleratorManager. Besides the time,
// `share_served` tells how many of the labels got a letter of their own.

namespace {

using namespace Qt::StringLiterals;

QStringList make_labels(int count)
{
    static const QStringList names
        = u"New|Open...|Open Recent|Save|Save As...|Save All|Revert|Import...|Export...|Print...|Close|"
          "Close All|Quit|Undo|Redo|Cut|Copy|Paste|Paste Special...|Delete|Select All|Deselect|Invert "
          "Selection|Find...|Replace...|Preferences...|Zoom In|Zoom Out|Fit to Window|Actual Size|Full "
          "Screen|Rulers|Grid|Guides|Rotate Left|Rotate Right|Flip Horizontal|Flip Vertical|Crop|Resize...|"
          "Canvas Size...|Brightness...|Contrast...|Saturation...|Levels...|Curves...|Histogram|Invert|"
          "Grayscale|Threshold...|Sharpen|Blur|Gaussian Blur...|Median...|Noise...|Emboss|Edge Detect|New "
          "Layer|Duplicate Layer|Merge Down|Flatten|Layer Properties...|Add Mask|Remove Mask|Channels|"
          "Palette...|Gradient...|Fill...|Stroke...|Measure|Annotate|Properties...|Metadata...|Batch "
          "Convert...|Macros|Run Script...|Plugins|Cascade|Tile|Next Window|Previous Window|Help Contents|"
          "Keyboard Shortcuts|Report a Problem...|Check for Updates|About"_s.split(u'|');
    QStringList labels;
    for (int number = 0; number < count; ++number)
        labels += names[number % names.size()] + (number < names.size() ? u""_s : u" Again"_s);
    return labels;
}

class ArborPopup : public CVqAbstractMenu
{
public:
    explicit ArborPopup(const QStringList& labels)
    {
        m_pRoot = CVqAbstractMenu::Manipulators().create_item_mainroot(0);
        vq_uint32 id = 1;
        for (const QString& label : labels)
            AppendMenuItem(id++, 0, CVqStringW::FromQString(label), VQ_TEXT(""), 0);
    }

    void Assign() { UpdateMnemonics(0, false); }

    int Served() const
    {
        int served = 0;
        for (const CVqMenuItem* item = m_pRoot->subItem(); item; item = item->nextItem())
            served += item->mnemonic() != 0;
        return served;
    }
};

class KdePopup
{
public:
    explicit KdePopup(const QStringList& labels)
    {
        for (const QString& label : labels)
            m_menu.addAction(label);
    }

    void Assign() { KAcceleratorManager::manage(&m_menu); }

    int Served() const
    {
        int served = 0;
        for (const QAction* action : m_menu.actions())
            served += action->text().contains(u'&');
        return served;
    }

private:
    QMenu m_menu;
};

template <class Popup>
void mnemonics(benchmark::State& state)
{
    const QStringList labels = make_labels(int(state.range(0)));
    int served = 0;
    for (auto step : state) {
        state.PauseTiming();
        auto popup = std::make_unique<Popup>(labels);
        state.ResumeTiming();
        popup->Assign();
        state.PauseTiming();
        served = popup->Served();
        popup.reset();
        state.ResumeTiming();
    }
    state.counters["share_served"] = double(served) / double(labels.size());
}

}

BENCHMARK(mnemonics<ArborPopup>)->Name("Mnemonics/Arbor")->Arg(10)->Arg(30)->Arg(100);
BENCHMARK(mnemonics<KdePopup>)->Name("Mnemonics/KAcceleratorManager")->Arg(10)->Arg(30)->Arg(100);

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
