#include "federation/frmImportNBB.h"

namespace plexoran {

frmImportNBB::frmImportNBB(Administratie& administratie, Importgeheugen& geheugen, QWidget* ouder)
    : QDialog(ouder), administratie_(administratie), geheugen_(geheugen)
{
    if (!administratie_.DataMap.empty())
        LedenDatabase_ = Samen(administratie_.DataMap, "Members.mdb");
    Bouw();
    Verbind();
    VerbindHulp();
    ToonAanbod();
}

void frmImportNBB::reject()
{
    if (!bezig_)
        QDialog::reject();
}

} // namespace plexoran
