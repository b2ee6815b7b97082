// A folder of its own for a test on the real disk; gone afterwards.
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "platform/schijf/schijf.h"

namespace plexoran {

class TijdelijkeMap {
  public:
    TijdelijkeMap()
    {
        static std::atomic<int> teller = 0;
        const auto nu = std::chrono::steady_clock::now().time_since_epoch().count();
        map_ = std::filesystem::path(::testing::TempDir()) /
               ("plexoran-" + std::to_string(nu) + "-" + std::to_string(++teller));
        if (!std::filesystem::create_directory(map_))
            throw std::runtime_error("de map bestaat al"); // never another test's folder
    }
    TijdelijkeMap(const TijdelijkeMap&) = delete;
    TijdelijkeMap& operator=(const TijdelijkeMap&) = delete;
    ~TijdelijkeMap()
    {
        std::error_code fout;
        std::filesystem::remove_all(map_, fout);
    }

    [[nodiscard]] const std::filesystem::path& Weg() const { return map_; }
    [[nodiscard]] Pad AlsPad() const { return map_.string(); }
    /// What is in it, as a message shows it: in UTF-8, with the system's own separators.
    [[nodiscard]] std::string Toonpad(const std::filesystem::path& naam) const
    {
        const std::u8string utf8 = (map_ / naam).make_preferred().u8string();
        return {utf8.begin(), utf8.end()};
    }

    /// Past the disk under test; the name is the system's own.
    void Zet(const std::filesystem::path& naam, const std::string& inhoud) const
    {
        std::ofstream(map_ / naam, std::ios::binary) << inhoud;
    }
    [[nodiscard]] std::string Inhoud(const std::filesystem::path& naam) const
    {
        std::ifstream bestand(map_ / naam, std::ios::binary);
        return {std::istreambuf_iterator<char>(bestand), {}};
    }

  private:
    std::filesystem::path map_;
};

} // namespace plexoran
