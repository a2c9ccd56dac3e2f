#include "core/workbench.h"

#include <algorithm>

#include "core/view.h"

namespace wb {

Workbench::Workbench(const platform::Services& services, const Wiring& wiring)
    : platform(services), focus(*this), windows(*this), wiring_(&wiring) {}

Workbench::~Workbench() = default;

std::unique_ptr<Screen> Workbench::makeScreen(ScreenId id) {
    switch (id) {
        case ScreenId::Main:
            return std::make_unique<FrmMain>(*this);
        case ScreenId::Splash:
            return std::make_unique<FrmSplash>(*this);
        case ScreenId::Edid:
            return std::make_unique<FrmEdid>(*this);
        case ScreenId::CeaExt:
            return std::make_unique<FrmCeaExt>(*this);
        case ScreenId::Document:
            return std::make_unique<FrmDocument>(*this);
        case ScreenId::HexCalculator:
            return std::make_unique<FrmHexCalculator>(*this);
        case ScreenId::Help:
            return std::make_unique<FrmHelp>(*this);
        case ScreenId::EdidReg:
            return std::make_unique<FrmEdidReg>(*this);
        case ScreenId::About:
            break;
    }
    return std::make_unique<FrmAbout>(*this);
}

std::unique_ptr<Screen> Workbench::makeConnected(ScreenId id) {
    std::unique_ptr<Screen> screen = makeScreen(id);
    if (const ScreenLife& life = lifeOf(id); life.connect != nullptr) {
        life.connect(*screen);
    }
    screen->markAsMade();
    return screen;
}

std::unique_ptr<Screen> Workbench::takeSpare(ScreenId id) {
    const auto place = static_cast<std::size_t>(id);
    if (asMade_[place] == nullptr) {
        asMade_[place] = makeConnected(id);
    }
    spare_[place]->takeBack(*asMade_[place]);
    return std::move(spare_[place]);
}

void Workbench::startOver() {
    static const SharedVariables initial;
    static_cast<SharedVariables&>(*this) = initial;
    focus = Focus(*this);
    windows = Windows(*this);
    ended = false;
    creationOrder_.clear();
    for (std::size_t place = 0; place < screens_.size(); ++place) {
        if (screens_[place] != nullptr) {
            spare_[place] = std::move(screens_[place]);
        }
    }
}

Screen& Workbench::create(ScreenId id) {
    auto& slot = screens_[static_cast<std::size_t>(id)];
    slot = spare_[static_cast<std::size_t>(id)] == nullptr ? makeConnected(id) : takeSpare(id);
    Screen& screen = *slot;
    creationOrder_.push_back(&screen);
    const ScreenLife& life = lifeOf(id);
    if (life.load != nullptr) {
        life.load(*this);
    }
    if (view != nullptr) {
        view->screenLoaded(screen);
    }
    return screen;
}

bool Workbench::runUnload(Screen& screen) {
    const ScreenLife& life = lifeOf(screen.id());
    bool cancel = false;
    if (life.unload != nullptr) {
        life.unload(*this, cancel);
    }
    return !cancel;
}

void Workbench::close(Screen& screen) {
    if (const ScreenLife& life = lifeOf(screen.id()); life.close != nullptr) {
        life.close(*this);
    } else {
        windows.unload(screen.id());
    }
}

void Workbench::discard(ScreenId id) {
    auto& slot = screens_[static_cast<std::size_t>(id)];
    if (slot == nullptr) {
        return;
    }
    creationOrder_.erase(std::remove(creationOrder_.begin(), creationOrder_.end(), slot.get()), creationOrder_.end());
    if (view != nullptr) {
        view->screenUnloaded(*slot);
    }
    retired_.push_back(std::move(slot));
}

void Workbench::showFailure(const Failure& failure) {
    showMessage(failure.what());
}

void Workbench::showMessage(const std::string& text) {
    platform.messageBoxes.show({.text = text});
}

bool Workbench::askYesNo(const std::string& text, const std::string& title, platform::Icon icon) {
    return platform.messageBoxes.show(
               {.text = text, .title = title, .buttons = platform::Buttons::YesNo, .icon = icon}) ==
           platform::Answer::Yes;
}

} // namespace wb
