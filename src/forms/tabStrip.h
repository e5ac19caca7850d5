// A tabbed dialog page: captions, one of them in front, and the frames that belong to each.
#pragma once

#include "forms/frame.h"

namespace forms {

class TabStrip : public Container {
  public:
    TabStrip() : Container(ControlKind::tabStrip) {}

    int tabs() const { return static_cast<int>(captions_.size()); }
    /// Tabs count from 0. The first tab is in front at the start.
    /// Error 5 below 0. If the front tab goes, the last one comes to the front, without an event.
    void setTabs(int count);
    /// Error 5 for a tab that is not there; so with setTabCaption and placeOnTab.
    const std::string& tabCaption(int tab) const;
    void setTabCaption(int tab, std::string_view caption);

    int tab() const { return tab_; }
    /// Brings a tab to the front: its frames show, those of the others hide. Raises onClick if it really
    /// changes. Error 5 for a tab that is not there.
    void setTab(int tab);

    /// Places a frame on a tab.
    void placeOnTab(int tab, Frame& frame, const Position& position);

    std::function<void()> onClick;
    /// Called by the peer.
    void selected(int tab) { setTab(tab); }

  protected:
    void childRemoved(Control& child) override;

  private:
    struct Page {
        int tab;
        Frame* frame;
    };
    void showFrames();

    std::vector<std::string> captions_;
    std::vector<Page> pages_;
    int tab_ = 0;
};

} // namespace forms
