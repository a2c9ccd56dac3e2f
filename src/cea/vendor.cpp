#include "cea/vendor.h"

#include <array>

#include "cea/flag_list.h"
#include "cea/handlers.h"
#include "cea/location.h"
#include "cea/procedure.h"
#include "core/base/text.h"

namespace wb::cea {

namespace {

/// By the check of the flag.
constexpr std::array<ListedFlag, 6> extensionFlags = {{{7, "Supports_AI,"},
                                                       {6, " DC_48bit,"},
                                                       {5, " DC_36bit,"},
                                                       {4, " DC_30bit,"},
                                                       {3, " DC_Y444,"},
                                                       {0, " DVI_Dual,"}}};

/// Cell of the vendor block, counted from its header.
int vendorCell(const Workbench& workbench, int offset) {
    return location(workbench.VendorBlockStart, offset);
}

/// Turns an entered text to upper case, in its box too.
std::string takeEntered(Control& box) {
    box.setText(upperCase(box.text()));
    return box.text();
}

} // namespace

void BuildVendorID(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const int third = vendorCell(run.workbench, 3);
        const std::string identifier =
            run.statement.read([&] { return run.text(third) + run.text(third - 1) + run.text(third - 2); });
        run.screen.txtBoxVendorID.setText(identifier);
        join(run.workbench.VendorIDText, {"Vendor IEEE Registration ID: ", identifier, " Hexadecimal"});
    });
}

void BuildVendorData(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        const int first = vendorCell(run.workbench, 4);
        const std::string data = run.statement.read([&] { return run.text(first) + run.text(first + 1); });
        run.screen.txtBoxVendorData.setText(data);
        join(run.workbench.VendorDataText, {"Vendor Specific Data: ", data, padding(data, 3), " Hexadecimal"});
    });
}

void BuildVSDBExt(Workbench& workbench) {
    decoder(workbench, [](const Procedure& run) {
        decodeFlags(run, vendorCell(run.workbench, 6), extensionFlags, run.screen.VSDBExt, run.workbench.VSDBExtText);
    });
}

void txtBoxVendorID_KeyUp(Workbench& workbench, int /*index*/, int keyCode) {
    onEnter(workbench, keyCode, [](const Procedure& run) {
        const std::string entered = takeEntered(run.screen.txtBoxVendorID);
        run.write(vendorCell(run.workbench, 1), rightPart(entered, 2));
        run.write(vendorCell(run.workbench, 2), rightPart(leftPart(entered, 4), 2));
        run.write(vendorCell(run.workbench, 3), leftPart(entered, 2));
        BuildVendorID(run.workbench);
    });
}

void txtBoxVendorData_KeyUp(Workbench& workbench, int /*index*/, int keyCode) {
    onEnter(workbench, keyCode, [](const Procedure& run) {
        const std::string entered = takeEntered(run.screen.txtBoxVendorData);
        run.write(vendorCell(run.workbench, 4), leftPart(entered, 2));
        run.write(vendorCell(run.workbench, 5), rightPart(entered, 2));
        BuildVendorData(run.workbench);
    });
}

void txtBoxVendorID_GotFocus(Workbench& workbench, int /*index*/) {
    SelectAllInControl(workbench.frmCEA_EXT().txtBoxVendorID);
}

void txtBoxVendorData_GotFocus(Workbench& workbench, int /*index*/) {
    SelectAllInControl(workbench.frmCEA_EXT().txtBoxVendorData);
}

void VSDBExt_Click(Workbench& workbench, int index) {
    panelHandler(workbench, [&](const Procedure& run) {
        const int place = extensionFlags[static_cast<std::size_t>(index)].place;
        writeFlag(run, vendorCell(run.workbench, 6), wholeByte, place, run.screen.VSDBExt(index));
        BuildVSDBExt(run.workbench);
    });
}

} // namespace wb::cea
