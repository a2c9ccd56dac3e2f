#include "report/show_report.h"

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

void showOnce(Workbench& workbench, bool hidden) {
    BuildBlock0Report(workbench);
    if (workbench.DocumentOpen == flagFalse) {
        openWindow(workbench, hidden);
    }
    workbench.frmDocument().rtftext.setLocked(false);
    std::string text = joinedEntries(workbench.ReportBlock0Lines);
    if (hasExtensionByDecimalText(workbench)) {
        BuildExtensionReport(workbench);
        text += joinedEntries(workbench.ReportExtLines);
    }
    workbench.frmDocument().rtftext.setText(std::move(text));
    if (!hidden) {
        workbench.frmDocument().rtftext.setLocked(true);
        workbench.windows.show(workbench.frmDocument());
    }
}

} // namespace

void ShowReport(Workbench& workbench, bool hidden) {
    const Step step(workbench, "building the report");
    for (int pass = 0; pass < passes; ++pass) {
        if (workbench.EDIDLoaded != flagFalse) {
            showOnce(workbench, hidden);
        }
    }
}

} // namespace wb::report
