// A picture box: shows what the control says it looks like.
#include "win32/forms/paintedPeer.h"
#include "win32/forms/peers.h"

#include "forms/pictureBox.h"

namespace win32 {

namespace {

class PictureBoxPeer : public PaintedPeer {
  public:
    explicit PictureBoxPeer(forms::PictureBox& box) : PaintedPeer(box), box_(box) {
        createChild("STATIC", {}, SS_NOTIFY);
    }

  protected:
    void paint(HDC dc, const RECT& area) override { paintPicture(dc, area, box_.image(), colourBehind()); }

  private:
    forms::PictureBox& box_;
};

} // namespace

std::unique_ptr<forms::Peer> makePictureBoxPeer(forms::PictureBox& box) {
    return std::make_unique<PictureBoxPeer>(box);
}

} // namespace win32
