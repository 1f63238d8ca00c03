#include "system/errors.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace torvenhall
{

namespace
{

struct Description {
    int number;
    std::string_view text;
};

constexpr std::array Descriptions{
    Description{error::InvalidCall, "Недопустимый вызов процедуры"},
    Description{error::Overflow, "Переполнение"},
    Description{error::OutOfMemory, "Недостаточно памяти"},
    Description{error::Subscript, "Индекс за пределами допустимого"},
    Description{error::DivisionByZero, "Деление на ноль"},
    Description{error::TypeMismatch, "Несовпадение типов"},
    Description{error::BadFileName, "Недопустимое имя файла"},
    Description{error::FileNotFound, "Файл не найден"},
    Description{error::DeviceInputOutput, "Ошибка ввода-вывода устройства"},
    Description{error::FileExists, "Файл уже существует"},
    Description{error::BadRecordLength, "Файл длиннее, чем может быть"},
    Description{error::DiskFull, "Диск переполнен"},
    Description{error::TooManyFiles, "Открыто слишком много файлов"},
    Description{error::PermissionDenied, "Нет разрешения"},
    Description{error::PathFileAccess, "Ошибка доступа к файлу или папке"},
    Description{error::PathNotFound, "Путь не найден"},
};

} // namespace

std::string ErrorDescription(int number)
{
    const auto found = std::ranges::find(Descriptions, number, &Description::number);
    return std::string(found != Descriptions.end() ? found->text : "Неизвестная ошибка");
}

} // namespace torvenhall
