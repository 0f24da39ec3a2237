// SPDX-License-Identifier: MIT
// Fills a label template from a CSV file: all sheets as one PDF, the first sheet as a picture.
//
//     example_merge_csv LABEL.json DATA.csv FILE.pdf FILE.png
#include <host/HostLabel.h>
#include <vagrel/document/TVGRBasePrintInfo.h>
#include <vagrel/foundation/Text.h>
#include <vagrel/merge/TVGRCounter.h>
#include <vagrel/merge/TVGRData.h>
#include <vagrel/platform/Encoding.h>

#include <exception>
#include <iostream>

using namespace vagrel;

namespace {

// The file becomes the document's data source, and the merge is on.
void Connect(TVGRData& data, std::u16string_view file) {
    SetAnsiCodePage("UTF-8"); // of files without a mark
    data.SetCsvData(file, true, scvSemicolon, scqDoubleQuotes);
    data.SetDataSel(data.GetDatasets().back().fCaption);
    data.SetLinkData(true);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::cerr << "usage: " << argv[0] << " LABEL.json DATA.csv FILE.pdf FILE.png\n";
        return 2;
    }
    try {
        HostLabel label;
        label.LoadFromFile(FromUtf8(argv[1]));
        Connect(label.GetData(), FromUtf8(argv[2]));
        label.CheckPrintData(); // opens the source and counts
        // A counter wants a label for each of its values; here the records alone decide how many there are.
        for (int i = 1; i <= label.CounterCount(); ++i)
            label.GetCounter(i)->SetNumTo(label.GetData().GetNumlabels());
        label.CheckPrintData();
        const TVGRBasePrintInfo& info = label.GetPrintInfo();
        std::cout << info.GetLabelsToPrint() << " labels on " << info.GetPagesToPrint() << " sheets\n";
        label.ExportDoc(exPDF, FromUtf8(argv[3]), 0, 1, 90, false, false, false);
        label.ExportDoc(exPNG, FromUtf8(argv[4]), 1, 1, 90, false, false, false);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
