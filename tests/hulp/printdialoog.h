// Working the print dialog of the system, in which a PDF file stands among the printers.
#pragma once

#include <QDialogButtonBox>

#include <filesystem>

#include "hulp/berichtwachter.h"
#include "hulp/venstergrepen.h"

namespace plexoran {

inline void DrukPrintdialoog(QDialog& dialoog, QDialogButtonBox::ButtonRole rol)
{
    const auto* knoppen = dialoog.findChild<QDialogButtonBox*>();
    if (knoppen == nullptr)
        throw std::runtime_error("de printdialoog heeft geen knoppen");
    for (QAbstractButton* knop : knoppen->buttons()) {
        if (knoppen->buttonRole(knop) == rol) {
            knop->click();
            return;
        }
    }
    throw std::runtime_error("de printdialoog heeft die knop niet");
}

/// Shows the options, which are folded away at first.
inline void VouwUit(QDialog& dialoog)
{
    for (QPushButton* knop : dialoog.findChildren<QPushButton*>()) {
        if (knop->text().endsWith(">>"_L1)) {
            knop->click();
            QApplication::processEvents();
            return;
        }
    }
    throw std::runtime_error("de printdialoog heeft geen opties");
}

inline void KiesPdf(QDialog& dialoog, const std::filesystem::path& bestand)
{
    auto* printers = Vind<QComboBox>(dialoog, "printers");
    const int plaats = printers->findText(u"(PDF)"_s, Qt::MatchContains);
    if (plaats < 0)
        throw std::runtime_error("er staat geen PDF tussen de printers");
    printers->setCurrentIndex(plaats);
    emit printers->activated(plaats);
    Vind<QLineEdit>(dialoog, "filename")->setText(QString::fromStdString(bestand.string()));
}

/// The next print dialog is answered with this PDF file; `stappen` choose what else there is.
inline void VerwachtPdf(
    Berichtwachter& wachter, const std::filesystem::path& bestand,
    const std::function<void(QDialog&)>& stappen = [](QDialog&) {})
{
    wachter.Bedien([=](QDialog& dialoog) {
        KiesPdf(dialoog, bestand);
        stappen(dialoog);
        DrukPrintdialoog(dialoog, QDialogButtonBox::AcceptRole);
    });
}

} // namespace plexoran
