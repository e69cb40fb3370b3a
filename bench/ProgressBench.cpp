#include "quick_backend/CVqQuickProgressView.h"
#include "quick_backend/CVqQuickProgressWnd.h"

#ifdef ARBOR_BENCH_KJOB
#include <KJob>
#endif

#include <QApplication>
#include <QProgressDialog>
#include <QQuickWindow>

#include <benchmark/benchmark.h>

// Telling a progress window of each step in a tight loop of ten million, against QProgressDialog and a KJob
// with a label that follows it. Each side shows its window. Bare has a bar alone; Full has percentage,
// counter and time left too, which the others do not compute. What is measured is one step.

namespace {

using namespace Qt::StringLiterals;

constexpr int g_steps = 10'000'000;
constexpr int g_all_flags = 1 | 2 | 4 | 32;

class ArborProgress
{
public:
    explicit ArborProgress(int flags) : m_window(VQ_TEXT("Resize"), g_steps, 0, true, flags)
    {
        m_window.SetPos(0);
        QObject::connect(m_window.Window(), &QQuickWindow::frameSwapped, [this] { ++m_frames; });
        m_window.CheckCanceled();
    }

    void SetPos(int step) { m_window.SetPos(unsigned(step)); }
    bool CheckCanceled() { return m_window.CheckCanceled(); }
    int Frames() const { return m_frames; }

private:
    int m_frames = 0;
    CVqQuickProgressWnd m_window;
};

class QtProgress
{
public:
    explicit QtProgress(Qt::WindowModality modality) : m_dialog(u"Resize"_s, u"Cancel"_s, 0, g_steps)
    {
        m_dialog.setWindowModality(modality);
        m_dialog.setMinimumDuration(0);
        m_dialog.setValue(0);
        m_dialog.show();
        QCoreApplication::processEvents();
    }

    void SetPos(int step) { m_dialog.setValue(step); }

private:
    QProgressDialog m_dialog;
};

void bare(benchmark::State& state)
{
    ArborProgress progress(0);
    int step = 0;
    for (auto round : state)
        progress.SetPos(++step % g_steps);
}

void full(benchmark::State& state)
{
    ArborProgress progress(g_all_flags);
    int step = 0;
    for (auto round : state)
        progress.SetPos(++step % g_steps);
}

// As work does that can be cancelled; `frames_per_second` is what that draws.
void bare_with_cancel(benchmark::State& state)
{
    ArborProgress progress(0);
    const int before = progress.Frames();
    int step = 0;
    for (auto round : state) {
        progress.SetPos(++step % g_steps);
        benchmark::DoNotOptimize(progress.CheckCanceled());
    }
    state.counters["frames_per_second"]
        = benchmark::Counter(progress.Frames() - before, benchmark::Counter::kIsRate);
}

template <Qt::WindowModality modality>
void dialog(benchmark::State& state)
{
    QtProgress progress(modality);
    int step = 0;
    for (auto round : state)
        progress.SetPos(++step % g_steps);
}

#ifdef ARBOR_BENCH_KJOB
class Job : public KJob
{
public:
    Job() { setTotalAmount(KJob::Files, qulonglong(g_steps)); }

    void start() override { }
    void SetPos(int step) { setProcessedAmount(KJob::Files, qulonglong(step)); }
};

void job(benchmark::State& state)
{
    Job job;
    qulonglong seen = 0;
    QObject::connect(&job, &KJob::processedAmountChanged, [&](KJob*, KJob::Unit, qulonglong n) { seen = n; });
    int step = 0;
    for (auto round : state)
        job.SetPos(++step % g_steps);
    benchmark::DoNotOptimize(seen);
}
#endif

void add(const char* name, void (*measure)(benchmark::State&))
{
    benchmark::RegisterBenchmark(name, measure);
}

}

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    const QApplication application(argc, argv);
    add("StepBare/Arbor", bare);
    add("StepBare/QProgressDialog", dialog<Qt::NonModal>);
    add("StepFull/Arbor", full);
    add("StepFull/QProgressDialog", dialog<Qt::NonModal>);
    add("StepAndEvents/Arbor", bare_with_cancel);
    add("StepAndEvents/QProgressDialog", dialog<Qt::ApplicationModal>);
#ifdef ARBOR_BENCH_KJOB
    add("StepBare/KJob", job);
    add("StepFull/KJob", job);
#endif
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
