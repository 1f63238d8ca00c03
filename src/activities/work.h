#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "core/demands.h"

namespace torvenhall
{

struct Job {
    std::string_view caption; ///< of its button
    std::string_view title;
    int pay = 0; ///< dollars a day
    Demand demands[4];
    std::string_view refusal = {};
};

// Job 0 has no button. What the refusals name is more than what is asked, and
// partly something else, on purpose. Saved games keep the numbers: a new job is
// the new top, so it goes to the end.
inline constexpr std::array Jobs{
    Job{"", "Безработный", 0, {}},
    Job{"Дворник - $10", "Дворник", 10, {}},
    Job{"Сантехник -$15", "Сантехник", 15, {{&Game::Intelligence, 25}}, "Поумнейте до 25%"},
    Job{"Инженер - $20",
        "Инженер",
        20,
        {{&Game::Education, 2}, {&Game::Intelligence, 35}},
        "Поумнейте до 35% и станьте Юзером с Windows 3.1"},
    Job{"Мененджер - $80",
        "Мененджер",
        80,
        {{&Game::Education, 2}, {&Game::Intelligence, 45}},
        "Поумнейте до 45% и станьте Юзером с Windows 95"},
    Job{"Дизайнер $95",
        "Дизайнер",
        95,
        {{&Game::Education, 3}, {&Game::Intelligence, 60}, {&Game::HardScanner, 2}},
        "Приобретите компьютер с Windows 98 и Adobe Photoshop 6 и сканером Mustek 600 CP, станьте "
        "Ламером и поумнейте до 60%"},
    Job{"Архитектор - $115",
        "Архитектор",
        115,
        {{&Game::Education, 4}, {&Game::Intelligence, 65}},
        "Приобретите компьютер с Windows 98 и Adobe Photoshop 6, станьте Ламером и поумнейте до "
        "65%"},
    Job{"Бухгалтер - $125",
        "Бухгалтер",
        125,
        {{&Game::Education, 2}, {&Game::Intelligence, 70}},
        "Приобретите компьютер с Windows 98, станьте Юзером и поумнейте до 70%"},
    Job{"Программист - $150",
        "Программист",
        150,
        {{&Game::Education, 5}, {&Game::Intelligence, 85}},
        "Приобретите компьютер с Windows NT4, станьте Программером и поумнейте до 85%"},
    Job{"Сисадмин - $175",
        "Сисадмин",
        175,
        {{&Game::Education, 6}, {&Game::Intelligence, 85}, {&Game::HardComm, 4}},
        "Приобретите компьютер с Windows 2000 с 56000 bps V.90 модемом, станьте Сисадмином и "
        "поумнейте до 85%"},
    Job{"Спец. по комп. безоп. $200",
        "Спец. по комп. безоп.",
        200,
        {{&Game::Education, 6}, {&Game::Intelligence, 90}},
        "Приобретите компьютер с Windows Millenium, станьте Сисадмином и поумнейте до 90%"},
    Job{"Хакер - $540",
        "Хакер",
        540,
        {{&Game::Education, 7}, {&Game::Intelligence, 98}, {&Game::HardComm, 6}},
        "Приобретите компьютер с Linux с DVB 2 Mb/s Satelette Device за $600, станьте Хакером и "
        "поумнейте до 98"},
    Job{"Босс hakc-фирмы - $750",
        "Босс hack-фирмы",
        750,
        {{&Game::Education, 8}, {&Game::Intelligence, 100}, {&Game::HardComm, 6}},
        "Приобретите компьютер с Unix с DVB 2 Mb/s Satelette Device за $600, станьте Профи и "
        "поумнейте до 100"},
};
static_assert(std::ranges::all_of(Jobs,
                                  [](const Job& job) {
                                      return job.refusal.empty() != AskSomething(job.demands);
                                  }),
              "a job that asks for something says so when it is refused");

/// The job that a winner has, and that nobody is dismissed from.
inline constexpr int TopJob{Jobs.size() - 1};
static_assert(TopJob == 12, "the job that wins");

/// A button for every job but unemployment; button i applies for job i + 1.
inline constexpr int JobButtons = TopJob;
/// The captions of cmdWork0 to cmdWork11.
inline constexpr auto JobCaptions = [] {
    std::array<std::string_view, JobButtons> captions;
    std::ranges::transform(std::span(Jobs).subspan(1), captions.begin(), &Job::caption);
    return captions;
}();

/// Takes job 0..TopJob with its title and pay; any other index keeps the job.
/// Shows the job either way.
void SetWork(Int16 index);

/// The box that an application for the job of a button would bring, or nothing
/// where the job would be given.
std::optional<MessageBox> JobRefusal(int button);
/// Applies for the job of a button: taken, or refused with a box.
void ApplyForJob(int button);

} // namespace torvenhall
