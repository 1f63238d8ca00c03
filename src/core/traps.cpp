#include "core/traps.h"

#include "core/waits.h"
#include "system/convert.h"

namespace torvenhall
{

namespace
{

std::string ErrorMessage(int number, const std::string& path)
{
    if (number == error::OutOfMemory) {
        return "Системная ошибка: Недостаточно памяти для выполнения команды. "
               "Закройте часть приложений и повторите попытку";
    }
    if (number == error::TypeMismatch) {
        return "Ошибка приложения или системная ошибка: Несовпадение типов данных! "
               "Обратитесь к разработчику! Программа может работать некорректно.";
    }
    return "Возникла непредвиденная ошибка № " + Decimal(number) + " : " +
           ErrorDescription(number) + (path.empty() ? "" : ": " + path) +
           ". Программа может некорректно работать. Обратитесь к разработчику!";
}

} // namespace

void ReportError(int number, const std::string& path)
{
    MsgBox(ErrorMessage(number, path), "Torvenhall", Icon::Critical);
}

} // namespace torvenhall
