#include "hulp/proefsuite.h"

#include <algorithm>
#include <stdexcept>

namespace plexoran {
namespace {

namespace fs = std::filesystem;

std::string LeesVoorbeeld(const char* naam)
{
    std::ifstream bestand(fs::path(VOORBEELD) / naam, std::ios::binary);
    if (!bestand)
        throw std::runtime_error(std::string("de voorbeeldsuite mist ") + naam);
    return {std::istreambuf_iterator<char>(bestand), {}};
}

std::string Vervangen(std::string tekst, const std::string& van, const std::string& door)
{
    for (auto plaats = tekst.find(van); plaats != std::string::npos;
         plaats = tekst.find(van, plaats + door.size()))
        tekst.replace(plaats, van.size(), door);
    return tekst;
}

} // namespace

Proefsuite::Proefsuite()
{
    fs::copy(VOORBEELD, Weg(), fs::copy_options::recursive);
    for (const char* map : {"Bestanden", "Competities", "Indelingen", "Zittingen"})
        fs::create_directory(Weg() / map);
    Zet("Mappen.ini", Vervangen(LeesVoorbeeld("Mappen.ini.sjabloon"), "@SUITE@", AlsPad()));
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

std::optional<Tekst> Proefwinkel::Waarde(Tekstblik toepassing, Tekstblik sectie, Tekstblik sleutel)
{
    const auto gevonden = waarden_.find(Samen(Samen(toepassing, sectie), sleutel));
    return gevonden == waarden_.end() ? std::nullopt : std::optional(gevonden->second);
}

} // namespace plexoran
