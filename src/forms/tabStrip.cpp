#include "forms/tabStrip.h"

#include "forms/event.h"
#include "runtime/runtimeError.h"

#include <algorithm>

namespace forms {

namespace {

std::size_t checked(int tab, std::size_t count) {
    if (tab < 0 || static_cast<std::size_t>(tab) >= count)
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    return static_cast<std::size_t>(tab);
}

} // namespace

void TabStrip::setTabs(int count) {
    if (count < 0)
        throw runtime::RuntimeError(runtime::ErrorNumber::invalidCall);
    captions_.resize(static_cast<std::size_t>(count));
    tab_ = std::clamp(tab_, 0, std::max(0, count - 1));
    showFrames();
    tellPeer(Property::items);
}

const std::string& TabStrip::tabCaption(int tab) const {
    return captions_[checked(tab, captions_.size())];
}

void TabStrip::setTabCaption(int tab, std::string_view caption) {
    std::string& shown = captions_[checked(tab, captions_.size())];
    if (caption == shown)
        return;
    shown = std::string(caption);
    tellPeer(Property::items);
}

void TabStrip::setTab(int tab) {
    checked(tab, captions_.size());
    if (tab == tab_)
        return;
    tab_ = tab;
    showFrames();
    tellPeer(Property::selection);
    raise(onClick);
}

void TabStrip::placeOnTab(int tab, Frame& frame, const Position& position) {
    checked(tab, captions_.size());
    frame.place(*this, position);
    pages_.push_back({tab, &frame});
    showFrames();
}

void TabStrip::childRemoved(Control& child) {
    std::erase_if(pages_, [&child](const Page& page) { return page.frame == &child; });
}

void TabStrip::showFrames() {
    for (const Page& page : pages_)
        page.frame->setVisible(page.tab == tab_);
}

} // namespace forms
