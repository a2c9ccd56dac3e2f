#include "report/show_report.h"

#include <utility>

#include "core/base/image_layout.h"
#include "core/base/numbers.h"
#include "core/edid_image.h"
#include "core/step.h"
#include "report/block0_report.h"
#include "report/extension_report.h"
#include "report/report_lines.h"

namespace wb::report {

namespace {

// Each pass is a full one: a build has effects that add up (boxes of failures, and the place where the extension report
// puts its timings, which moves on with every build).
constexpr int passes = 5;

constexpr std::size_t usualSize = std::size_t{1} << 14U; ///< more than most reports have

void openWindow(Workbench& workbench, bool hidden) {
    if (!hidden) {
        workbench.windows.show(workbench.frmDocument());
        return;
    }
    workbench.frmDocument();
    workbench.windows.raise(workbench.frmEDID());
    workbench.windows.raise(workbench.frmCEA_EXT());
    workbench.platform.eventLoop.processPending();
    workbench.platform.eventLoop.processPending();
}

void openWindowIfClosed(Workbench& workbench, bool hidden) {
    if (workbench.DocumentOpen == flagFalse) {
        openWindow(workbench, hidden);
    }
}

void showText(Workbench& workbench, bool hidden, std::string text) {
    Control& box = workbench.frmDocument().rtftext;
    box.takeText(std::move(text));
    box.setLocked(!hidden);
    if (!hidden) {
        workbench.windows.show(workbench.frmDocument());
    }
}

/// What is left of a pass once it has begun.
void finish(Workbench& workbench, bool hidden) {
    workbench.frmDocument().rtftext.setLocked(false);
    std::string text;
    text.reserve(usualSize);
    addEntries(text, workbench.ReportBlock0Lines);
    if (hasExtensionByDecimalText(workbench)) {
        BuildExtensionReport(workbench);
        addEntries(text, workbench.ReportExtLines);
    }
    showText(workbench, hidden, std::move(text));
}

/// Whether no pass from here on runs handlers, which could change what the next one builds: the window has the focus,
/// or gets none.
bool staysAtRest(const Workbench& workbench, bool hidden) {
    if (workbench.EDIDLoaded == flagFalse || workbench.DocumentOpen == flagFalse) {
        return false;
    }
    const Control* const focused = workbench.focus.current();
    return hidden || (focused != nullptr && focused->screen().id() == ScreenId::Document);
}

/// Lays out what the last of several passes would. A failure is not shown but thrown.
std::string textOfLastPass(Workbench& workbench, int count) {
    layOutBlock0Report(workbench);
    std::string text;
    text.reserve(usualSize);
    addEntries(text, workbench.ReportBlock0Lines);
    if (leadingNumber(workbench.frmEDID().txtEdit(extensionCountCell).text()) != 0) {
        skipExtensionReports(workbench, count - 1);
        layOutExtensionReport(workbench);
        addEntries(text, workbench.ReportExtLines);
    }
    return text;
}

/// Has the effect of `count` passes by running the last one alone; false, and nothing has happened, where one of them
/// would fail. The passes differ in the place of the timings only, which moves on, so that none fails unless the last
/// one does.
bool showLastPass(Workbench& workbench, bool hidden, int count) {
    if (!staysAtRest(workbench, hidden) || workbench.ExtDtdStart < 0) {
        return false;
    }
    const std::int16_t start = workbench.ExtDtdStart;
    std::string text;
    try {
        text = textOfLastPass(workbench, count);
    } catch (const Failure&) {
        workbench.ExtDtdStart = start;
        return false;
    }
    showText(workbench, hidden, std::move(text));
    return true;
}

} // namespace

void ShowReport(Workbench& workbench, bool hidden, Passes how) {
    const Step step(workbench, "building the report");
    for (int pass = 0; pass < passes; ++pass) {
        if (workbench.EDIDLoaded == flagFalse) {
            continue;
        }
        const bool skip = how == Passes::LastWhereAlike && fitsBlock0Report(workbench);
        if (!skip) {
            BuildBlock0Report(workbench);
        }
        openWindowIfClosed(workbench, hidden);
        if (skip) {
            if (showLastPass(workbench, hidden, passes - pass)) {
                return;
            }
            BuildBlock0Report(workbench);
        }
        finish(workbench, hidden);
    }
}

} // namespace wb::report
