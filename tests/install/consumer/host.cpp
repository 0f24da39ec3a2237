// SPDX-License-Identifier: MIT
// A program that draws a circle with the reference host, as JSON, SVG and PDF.
#include <host/HostLabel.h>
#include <vagrel/document/TVGRBaseItem.h>

#include <iostream>

int main() {
    vagrel::HostLabel label;
    label.SetEditorMode(vagrel::emDrawing);
    vagrel::TVGRBaseItem& circle = label.CreateCircle({50000, 50000}, 20000);
    circle.SetPenWidth(0.5f);
    label.SaveToFile(u"circle.json", vagrel::lfJSON);
    label.ExportDoc(vagrel::exPDF, u"circle.pdf", 1, 1, 90, true, false, false);
    vagrel::HostLabel copy;
    copy.LoadFromFile(u"circle.json");
    std::cout << copy.SVG(vagrel::svCurrentUnit, 1, false);
}
