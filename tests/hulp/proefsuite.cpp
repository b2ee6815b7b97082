#include "hulp/proefsuite.h"

#include <QByteArray>

#include <algorithm>

namespace plexoran {

namespace fs = std::filesystem;

Proefsuite::Proefsuite()
{
    fs::copy(VOORBEELD, Weg(), fs::copy_options::recursive);
    for (const char* map : {"Bestanden", "Competities", "Indelingen", "Zittingen"})
        fs::create_directory(Weg() / map);
    Zet("Mappen.ini", QByteArray::fromStdString(Inhoud("Mappen.ini.sjabloon"))
                          .replace("@SUITE@", QByteArray::fromStdString(AlsPad()))
                          .toStdString());
}

std::vector<std::string> Proefsuite::Namen(const fs::path& map) const
{
    std::vector<std::string> namen;
    if (!fs::is_directory(Weg() / map))
        return namen;
    for (const auto& deel : fs::directory_iterator(Weg() / map))
        namen.push_back(deel.path().filename().string());
    std::sort(namen.begin(), namen.end());
    return namen;
}

std::optional<Tekst> Proefwinkel::operator()(Tekstblik toepassing, Tekstblik sectie,
                                             Tekstblik sleutel) const
{
    const auto gevonden = waarden_.find(Samen(Samen(toepassing, sectie), sleutel));
    return gevonden == waarden_.end() ? std::nullopt : std::optional(gevonden->second);
}

} // namespace plexoran
