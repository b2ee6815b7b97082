#include "platform/grootgeheugen.h"

#ifdef __linux__
#include <cstdint>

#include <sys/mman.h>
#include <unistd.h>
#endif

namespace plexoran {

#ifdef __linux__

void VraagGrotePaginas(const void* begin, std::size_t bytes)
{
    if (bytes < GrotePagina)
        return;
    const auto pagina = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    const auto eerste = reinterpret_cast<std::uintptr_t>(begin);
    const auto van = (eerste + pagina - 1) / pagina * pagina;
    const auto tot = (eerste + bytes) / pagina * pagina;
    // A refusal changes nothing but the time.
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the address of a page is a rounded one
    (void)::madvise(reinterpret_cast<void*>(van), tot - van, MADV_HUGEPAGE);
}

#else

void VraagGrotePaginas(const void* /*begin*/, std::size_t /*bytes*/)
{}

#endif

namespace {

std::align_val_t Uitlijning(std::size_t bytes)
{
    return std::align_val_t{bytes < GrotePagina ? alignof(std::max_align_t) : GrotePagina};
}

} // namespace

Tekenblok::Tekenblok(std::size_t bytes)
    : tekens_(static_cast<char*>(::operator new[](bytes, Uitlijning(bytes))), {Uitlijning(bytes)})
{
    VraagGrotePaginas(data(), bytes);
}

} // namespace plexoran
