#include "platform/printer.h"

#include "runtime/runtimeError.h"
#include "win32/common/holding.h"
#include "win32/common/resolution.h"

#include <windows.h>

#include <winspool.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace {

[[noreturn]] void fail() {
    throw runtime::RuntimeError(runtime::ErrorNumber::printerError);
}

std::string defaultPrinter() {
    std::array<char, 1024> name{};
    auto size = static_cast<DWORD>(name.size());
    if (GetDefaultPrinterA(name.data(), &size) == FALSE)
        fail();
    return name.data();
}

/// A document that is being printed; given up if it is not ended.
class Job {
  public:
    Job() : dc_(CreateDCA("WINSPOOL", defaultPrinter().c_str(), nullptr, nullptr)) {
        if (dc_ == nullptr)
            fail();
        // Twelve to the inch: the longest line of a wrapped text fits on a sheet of A4.
        constexpr float points = 10;
        font_ = CreateFontA(win32::fontHeight(points, GetDeviceCaps(dc_, LOGPIXELSY)), 0, 0, 0, FW_NORMAL,
                            FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                            DEFAULT_QUALITY, FIXED_PITCH | FF_MODERN, "Courier New");
        DOCINFOA document{};
        document.cbSize = sizeof document;
        document.lpszDocName = "Kestrel";
        // A printer that writes a file asks for its name.
        const win32::Hold hold(nullptr);
        if (font_ == nullptr || StartDocA(dc_, &document) <= 0) {
            release();
            fail();
        }
    }

    ~Job() {
        if (!ended_)
            AbortDoc(dc_);
        release();
    }

    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    void print(std::string_view line) {
        if (onPage_ && top_ + height_ > GetDeviceCaps(dc_, VERTRES))
            endPage();
        if (!onPage_)
            startPage();
        int stop = 8 * width_; // columns between two stops
        // The text's width comes back, which is nothing for an empty line only.
        if (!line.empty() &&
            TabbedTextOutA(dc_, 0, top_, line.data(), static_cast<int>(line.size()), 1, &stop, 0) == 0)
            fail();
        top_ += height_;
    }

    void end() {
        endPage();
        if (EndDoc(dc_) <= 0)
            fail();
        ended_ = true;
    }

  private:
    /// The system forgets the font with every page.
    void startPage() {
        if (StartPage(dc_) <= 0)
            fail();
        SelectObject(dc_, font_);
        TEXTMETRICA metrics{};
        GetTextMetricsA(dc_, &metrics);
        height_ = std::max(1, static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading));
        width_ = static_cast<int>(metrics.tmAveCharWidth);
        top_ = 0;
        onPage_ = true;
    }

    void endPage() {
        onPage_ = false;
        if (EndPage(dc_) <= 0)
            fail();
    }

    void release() const {
        DeleteDC(dc_);
        if (font_ != nullptr)
            DeleteObject(font_);
    }

    HDC dc_;
    HFONT font_ = nullptr;
    int top_ = 0;
    int height_ = 0; ///< of a line
    int width_ = 0;  ///< of a column
    bool onPage_ = false;
    bool ended_ = false;
};

std::unique_ptr<Job> job;

} // namespace

namespace platform {

void printLine(std::string_view line) {
    try {
        if (!job)
            job = std::make_unique<Job>();
        job->print(line);
    } catch (const runtime::RuntimeError&) {
        job.reset();
        throw;
    }
}

void endPrintJob() {
    if (!job)
        return;
    const std::unique_ptr<Job> ending = std::move(job);
    ending->end();
}

} // namespace platform
