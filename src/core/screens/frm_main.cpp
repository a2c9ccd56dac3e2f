#include "core/screens/frm_main.h"

#include "core/view.h"
#include "core/workbench.h"

namespace wb {

FrmMain::FrmMain(Workbench& workbench) : Screen(workbench, ScreenId::Main, "") {
    setFirstInTabOrder(Command1);
    int index = tbToolBar.first();
    for (const ToolBarKey& key : toolBarKeys) {
        tbToolBar(index++).setCaption(std::string(key.key));
    }
    Command3.setEnabled(false);
    Command4.setEnabled(false);
}

void FrmMain::setPosition(float left, float top, float width, float height) {
    Left = left;
    Top = top;
    Width = width;
    Height = height;
    if (workbench().view != nullptr) {
        workbench().view->screenChanged(*this);
    }
}

} // namespace wb
