#include "ManyJobs.h"
#include "ui/FileListControl.h"
#include "ui/look/SystemLook.h"

#include <benchmark/benchmark.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/init.h>
#include <wx/sizer.h>

// What a folder of many files costs the operator with the window included. Needs a display; see
// scripts/virtual-display.sh.

namespace vantrel::bench {
namespace {

BENCHMARK(bareReadAndStat)->Unit(benchmark::kMillisecond);

/// A window with one pane, painted for real.
class PaneWindow {
  public:
    explicit PaneWindow(ListView view) {
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(&list, 1, wxEXPAND);
        frame.SetSizer(sizer);
        frame.SetClientSize(450, 420);
        list.setColumnTitles({"Name", "Size", "Date"});
        list.setView(view);
        frame.Show();
        paint();
    }
    ~PaneWindow() {
        frame.Destroy();
        paint();
    }
    PaneWindow(const PaneWindow&) = delete;
    PaneWindow& operator=(const PaneWindow&) = delete;

    void show(const PaneRows& rows) {
        list.show(rows);
        paint();
    }
    void paint() {
        frame.Update();
        auto* const loop = wxEventLoopBase::GetActive();
        while (loop->Pending())
            loop->Dispatch();
        loop->ProcessIdle();
    }

    wxFrame& frame = *new wxFrame(nullptr, wxID_ANY, "bench");
    FileListControl& list = *new FileListControl(&frame, "lsvPC");
};

/// A folder is opened: read, filtered, sorted, shown and painted.
void openFolderInDetails(benchmark::State& state) {
    PaneWindow window(ListView::Details);
    manyJobs();
    for (auto _ : state) {
        ManyRows jobs;
        jobs.rows.sort();
        window.show(jobs.rows);
    }
}
BENCHMARK(openFolderInDetails)->Unit(benchmark::kMillisecond);

/// A click on a column header with so many files in this view, painted.
void sortAndShow(benchmark::State& state, ListView view, int files) {
    PaneWindow window(view);
    ManyRows jobs(files);
    for (auto _ : state) {
        jobs.sortTheOtherWay();
        window.show(jobs.rows);
    }
}

void sortInDetails(benchmark::State& state) {
    sortAndShow(state, ListView::Details, manyFiles);
}
BENCHMARK(sortInDetails)->Unit(benchmark::kMillisecond);

void selectAllInDetails(benchmark::State& state) {
    PaneWindow window(ListView::Details);
    ManyRows jobs;
    for (auto _ : state) {
        window.list.show(jobs.rows);
        window.list.selectAll();
        window.paint();
    }
}
BENCHMARK(selectAllInDetails)->Unit(benchmark::kMillisecond);

/// A tenth of the files in a view of icons, whose items are laid out one by one.
void showIcons(benchmark::State& state) {
    sortAndShow(state, ListView::LargeIcons, manyFiles / 10);
}
BENCHMARK(showIcons)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vantrel::bench

int main(int argc, char** argv) {
    vantrel::prepareSystem();
    wxApp::SetInstance(new wxApp);
    benchmark::Initialize(&argc, argv);
    if (!wxEntryStart(argc, argv) || !wxTheApp->CallOnInit())
        return 1;
    {
        wxEventLoop loop;
        const wxEventLoopActivator active(&loop);
        benchmark::RunSpecifiedBenchmarks();
    }
    wxEntryCleanup();
}
