#include "script/front_end.h"

#include "core/input.h"
#include "shell/enter_timing.h"
#include "shell/find_bytes.h"
#include "shell/go_to_byte.h"
#include "shell/history.h"
#include "shell/lifecycle.h"
#include "shell/paste_bytes.h"
#include "shell/startup.h"

namespace wb::script {

ModelFrontEnd::ModelFrontEnd(Workbench& workbench) : workbench_(&workbench) {
    shell::keepHistory(workbench);
}

void ModelFrontEnd::start() {
    workbench_->runAction([&] { shell::Main(*workbench_); });
}

bool ModelFrontEnd::click(Control& control) {
    return input::click(control);
}

bool ModelFrontEnd::doubleClick(Control& control) {
    return input::doubleClick(control);
}

bool ModelFrontEnd::moveFocus(Control& control) {
    return input::moveFocus(control);
}

bool ModelFrontEnd::pick(Control& combo, int row) {
    return input::pick(combo, row);
}

bool ModelFrontEnd::typeCharacter(char character) {
    return input::typeCharacter(*workbench_, character);
}

bool ModelFrontEnd::enter() {
    return input::enter(*workbench_);
}

bool ModelFrontEnd::keyCode(int code) {
    return input::keyCode(*workbench_, code);
}

bool ModelFrontEnd::chooseMenu(Control& entry) {
    return input::choose(entry);
}

bool ModelFrontEnd::pressToolBar(const std::string& key) {
    return input::toolBar(*workbench_, key);
}

bool ModelFrontEnd::close(Screen& screen) {
    return input::close(screen);
}

bool ModelFrontEnd::drop(const std::string& name) {
    return shell::dropDataFile(*workbench_, name);
}

bool ModelFrontEnd::goToByte(int byte) {
    return shell::goToByte(*workbench_, byte);
}

bool ModelFrontEnd::enterTiming(int byte, const fields::Modeline& modeline) {
    return shell::enterTiming(*workbench_, byte, modeline);
}

bool ModelFrontEnd::paste(const std::string& text) {
    return shell::pasteBytes(*workbench_, text).all;
}

bool ModelFrontEnd::find(const std::string& text, bool forward) {
    return shell::findBytes(*workbench_, text, forward ? shell::Direction::Forward : shell::Direction::Backward);
}

} // namespace wb::script
