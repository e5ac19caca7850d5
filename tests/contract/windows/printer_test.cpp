// Printing, on a printer of the tests' own whose pages are written into a file. Only under Wine is there one
// to be had without a driver.
#include "contract/windows/files.h"
#include "contract/world.h"
#include "platform/printer.h"
#include "runtime/runtimeError.h"

#include <doctest/doctest.h>

#include <windows.h>

#include <winspool.h>

namespace {

using contract::World;

/// What the driver has to know of a printer for paper of A4, which is 842 points high.
constexpr const char* description = "*PPD-Adobe: \"4.3\"\n"
                                    "*FormatVersion: \"4.3\"\n"
                                    "*LanguageVersion: English\n"
                                    "*LanguageEncoding: ISOLatin1\n"
                                    "*NickName: \"Contract\"\n"
                                    "*LanguageLevel: \"2\"\n"
                                    "*ColorDevice: False\n"
                                    "*DefaultResolution: 300dpi\n"
                                    "*TTRasterizer: Type42\n"
                                    "*OpenUI *PageSize: PickOne\n"
                                    "*DefaultPageSize: A4\n"
                                    "*PageSize A4: \"<</PageSize[595 842]>>setpagedevice\"\n"
                                    "*CloseUI: *PageSize\n"
                                    "*DefaultImageableArea: A4\n"
                                    "*ImageableArea A4: \"18 36 577 806\"\n"
                                    "*DefaultPaperDimension: A4\n"
                                    "*PaperDimension A4: \"595 842\"\n";

/// The default printer from its making to its end.
class FilePrinter {
  public:
    explicit FilePrinter(World& world) : file_(freshName()) {
        std::string data = world.path("printer.ppd");
        contract::writeWholeFile(data, description);
        std::string driverName = "Contract driver";
        std::string program = "wineps.drv";
        std::string type = "RAW";
        DRIVER_INFO_3A driver{};
        driver.cVersion = 3;
        driver.pName = driverName.data();
        driver.pDriverPath = program.data();
        driver.pDataFile = data.data();
        driver.pConfigFile = program.data();
        driver.pDefaultDataType = type.data();
        REQUIRE(AddPrinterDriverExA(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                                    APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY) != FALSE);
        std::string name = "Contract printer";
        std::string port = "/tmp/" + file_;
        std::string processor = "wineps";
        std::string nothing;
        PRINTER_INFO_2A printer{};
        printer.pPrinterName = name.data();
        printer.pPortName = port.data();
        printer.pDriverName = driverName.data();
        printer.pPrintProcessor = processor.data();
        printer.pDatatype = type.data();
        printer.pComment = printer.pLocation = printer.pSepFile = printer.pParameters = nothing.data();
        printer_ = AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
        REQUIRE(printer_ != nullptr);
        REQUIRE(SetDefaultPrinterA(name.c_str()) != FALSE);
    }

    ~FilePrinter() {
        DeletePrinter(printer_);
        ClosePrinter(printer_);
        WriteProfileStringA("windows", "device", nullptr);
        contract::removeWholeFile(path());
    }

    FilePrinter(const FilePrinter&) = delete;
    FilePrinter& operator=(const FilePrinter&) = delete;

    std::optional<std::string> printed() const { return contract::readWholeFile(path()); }

  private:
    /// By the moment as well: suites that run beside each other have drives of their own, on which processes
    /// have the same numbers, and share the folder that printers write to.
    static std::string freshName() {
        LARGE_INTEGER moment{};
        QueryPerformanceCounter(&moment);
        return "kestrel-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(moment.QuadPart) +
               ".ps";
    }

    std::string path() const { return "Z:\\tmp\\" + file_; }

    std::string file_;
    HANDLE printer_ = nullptr;
};

/// How often a text holds another one.
int count(const std::string& text, const std::string& what) {
    int found = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++found;
    return found;
}

int pagesOf(const FilePrinter& printer) {
    return count(printer.printed().value_or(""), "\n%%Page: ");
}

/// The last character's place on a page of its own that has this line: dots from the left.
int lastLeft(const FilePrinter& printer, std::string_view line) {
    platform::printLine(line);
    platform::endPrintJob();
    const std::string page = printer.printed().value_or("");
    const std::size_t last = page.rfind(" moveto");
    REQUIRE(last != std::string::npos);
    return std::stoi(page.substr(page.rfind('\n', last) + 1));
}

} // namespace

TEST_SUITE_BEGIN("contract/windows/printer");

TEST_CASE("a job goes to the printer when it is ended, and a full page makes room for the next") {
    if (contract::worldKind() != contract::WorldKind::wine) {
        MESSAGE("no printer of the tests' own: not tried");
        return;
    }
    World world;
    const FilePrinter printer(world);
    platform::printLine("one line");
    CHECK_FALSE(printer.printed().has_value());
    platform::endPrintJob();
    CHECK(pagesOf(printer) == 1);
    // 770 points of the page can be printed on, and a line takes about twelve of them.
    for (int line = 0; line < 60; ++line)
        platform::printLine(line % 2 == 0 ? "          Modul:\tloadLists" : "");
    platform::endPrintJob();
    CHECK(pagesOf(printer) == 1);
    for (int line = 0; line < 150; ++line)
        platform::printLine("text");
    platform::endPrintJob();
    CHECK(pagesOf(printer) == 3);
    platform::endPrintJob();
    CHECK(pagesOf(printer) == 3);
}

TEST_CASE("the longest line of a wrapped text fits on the page") {
    if (contract::worldKind() != contract::WorldKind::wine)
        return;
    World world;
    const FilePrinter printer(world);
    // In dots, of which 2329 can be printed side by side.
    const int left = lastLeft(printer, std::string(93, 'm'));
    CHECK(left > 2000);
    CHECK(left + left / 92 <= 2329);
}

TEST_CASE("a printed line has a stop of the tab every eight columns") {
    if (contract::worldKind() != contract::WorldKind::wine)
        return;
    World world;
    const FilePrinter printer(world);
    const int first = lastLeft(printer, std::string(8, 'x') + "m");
    const int second = lastLeft(printer, std::string(16, 'x') + "m");
    CHECK(first > 0);
    CHECK(lastLeft(printer, "\tm") == first);
    CHECK(lastLeft(printer, "1234567\tm") == first);
    CHECK(lastLeft(printer, "12345678\tm") == second);
}

TEST_CASE("a line of ten thousand characters and one with NULs are printed") {
    if (contract::worldKind() != contract::WorldKind::wine)
        return;
    World world;
    const FilePrinter printer(world);
    platform::printLine(std::string(10'000, 'x'));
    platform::printLine(std::string_view("before\0after\0", 13));
    platform::endPrintJob();
    CHECK(pagesOf(printer) == 1);
    CHECK(lastLeft(printer, std::string_view("\0\0m", 3)) == lastLeft(printer, "xxm"));
}

TEST_SUITE_END();
