#include "equipment/requirements.h"

#include <span>

#include "core/GameState.h"
#include "equipment/catalogue.h"

namespace torvenhall
{

namespace
{

// The messages do not always name what the rules ask, on purpose.

constexpr std::string_view MilleniumRefusal =
    "Слабая машинка!!!! Нужен Celeron 300A, 4.8 Gb IDE, 32 Mb RAM, S3 Trio 64V+";

constexpr Requirement Systems[]{
    {.processor = 1,
     .disk = 1,
     .memory = 1,
     .video = 1,
     .refusal = "Слабая машинка!!!! Нужен 486 DX2-66, 850 Mb IDE, 8 Mb RAM, S3 Trio 64V+"},
    {.processor = 2,
     .disk = 1,
     .memory = 1,
     .video = 1,
     .refusal = "Слабая машинка!!!! Нужен Pentium 133, 850 Mb IDE, 8 Mb RAM, S3 Trio 64V+"},
    {.processor = 2,
     .disk = 2,
     .memory = 2,
     .video = 1,
     .refusal = "Слабая машинка!!!! Нужен Pentium 133, 1.3 Gb IDE, 16 Mb RAM, S3 Trio 64V+"},
    {.processor = 3, .disk = 3, .memory = 2, .video = 1, .refusal = MilleniumRefusal},
    {.processor = 3, .disk = 3, .memory = 2, .video = 1, .refusal = MilleniumRefusal},
    {.processor = 4,
     .disk = 3,
     .memory = 3,
     .video = 2,
     .refusal = "Слабая машинка!!!! Нужен Intel Pentium II 350 MHz MMX,10 Gb IDE, 64 Mb RAM, "
                "nVidia Riva 128"},
    {.processor = 3,
     .disk = 3,
     .memory = 2,
     .video = 1,
     .refusal = "Слабая машинка!!!! Нужен Celeron 300A, 10 Gb IDE, 32 Mb RAM, S3 Trio 64V+"},
    {.processor = 5,
     .disk = 4,
     .memory = 3,
     .video = 3,
     .refusal = "Слабая машинка!!!! Нужен Intel Pentium III 650 MHz SSE2, 32 Gb EIDE, 64 Mb RAM, "
                "nVidia Riva TNT"},
};

constexpr Requirement Antiviruses[]{
    {.system = 1, .refusal = "Установи Windows 3.1!!!!"},
    {.system = 2, .refusal = "Установи Windows 95!!!!"},
    {.system = 6, .refusal = "Установи Windows 2000!!!!"},
    {.system = 6, .refusal = "Установи Windows 2000!!!!"},
};

constexpr Requirement ProgrammingTools[]{
    {.system = 1, .refusal = "Установи Windows 3.1!!!!"},
    {.system = 2, .refusal = "Установи Windows 95!!!!"},
    {.system = 3, .refusal = "Установи Windows 98!!!!"},
    {.system = 5, .refusal = "Установи Windows NT4!!!!"},
    {.system = 8, .exactSystem = true, .refusal = "Установи UNIX!!!!"},
};

constexpr Requirement GraphicsPackages[]{
    {.system = 2, .refusal = "Установи Windows 95!!!!"},
    {.video = 2, .system = 3, .refusal = "Установи Windows 98 и nVidia Riva TNT!!!!"},
    {.video = 4, .system = 3, .refusal = "Установи Windows 98 и nVidia Riva TNT2!!!!"},
    {.video = 5, .system = 3, .refusal = "Установи Windows 98 и nVidia GeForce 256!!!!"},
};

constexpr Requirement Browsers[]{
    {.system = 2, .refusal = "Установи Windows 95"},
    {.system = 2, .refusal = "Установи Windows 95"},
    {.system = 3, .refusal = "Установи Windows 98"},
    {.system = 3, .refusal = "Установи Windows 98"},
    {.system = 2, .refusal = "Установи Windows 95"},
};

constexpr Requirement Games[]{
    {.system = 1, .refusal = "Установи Windows 3.1"},
    {.system = 1, .refusal = "Установи Windows 3.1"},
    {.system = 2, .refusal = "Установи Windows 95"},
    {.system = 3, .refusal = "Установи Windows 98"},
    {.system = 3, .refusal = "Установи Windows 98"},
    {.system = 3, .refusal = "Установи Windows 98"},
};

constexpr std::span<const Requirement> Rules[]{Systems,          Antiviruses, ProgrammingTools,
                                               GraphicsPackages, Browsers,    Games};
static_assert(std::size(Rules) == SoftwareCategories);

} // namespace

const Requirement* RequirementOf(Int16 category, Int16 index)
{
    if (category < 0 || category >= SoftwareCategories) {
        return nullptr;
    }
    const auto rules = Rules[static_cast<std::size_t>(category.value())];
    if (index < 1 || index.value() > static_cast<int>(rules.size())) {
        return nullptr;
    }
    return &rules[static_cast<std::size_t>(index.value() - 1)];
}

bool IsMet(const Requirement& rule)
{
    const bool systemFits =
        rule.exactSystem ? GameState.SoftOS == rule.system : GameState.SoftOS >= rule.system;
    // A rule that asks nothing of a part holds even for a nonsensical index
    // from an edited file.
    const auto reaches = [](Int16 installed, int least) {
        return least == 0 || installed >= least;
    };
    return (rule.system == 0 || systemFits) && reaches(GameState.HardCPU, rule.processor) &&
           reaches(GameState.HardHDD, rule.disk) && reaches(GameState.HardRAM, rule.memory) &&
           reaches(GameState.HardVideo, rule.video);
}

} // namespace torvenhall
