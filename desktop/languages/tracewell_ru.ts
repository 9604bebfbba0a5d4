<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Panel</name>
    <message>
        <source>%1 are chosen, and there is room for %2: the last cell shows the last.</source>
        <translation>Выбрано %1, а мест %2: в последней ячейке будет последнее.</translation>
    </message>
    <message>
        <source>%1 could not be read whole and will be kept as %2</source>
        <translation>%1 прочитан не полностью и будет сохранён как %2</translation>
    </message>
    <message>
        <source>%1 has changed since you chose it: press %2 to load it as it is now</source>
        <translation>Файл %1 изменился после того, как вы его выбрали: нажмите %2, чтобы загрузить его таким, какой он теперь</translation>
    </message>
    <message>
        <source>%1 has lines of another program too; they are in the log now</source>
        <translation>В %1 есть и строки другой программы; теперь они в журнале</translation>
    </message>
    <message>
        <source>%1 has no data</source>
        <translation>В %1 нет данных</translation>
    </message>
    <message>
        <source>%1 has no record of what was chosen</source>
        <translation>В %1 нет записи выбранных каналов</translation>
    </message>
    <message>
        <source>%1 has no spectrum: its scales are not known, or its record is cut</source>
        <translation>У %1 нет спектра: масштабы неизвестны или запись обрезана</translation>
    </message>
    <message>
        <source>%1 has too few brackets: values of the report stand in wrong places</source>
        <translation>В %1 не хватает скобок: значения отчёта стоят не на своих местах</translation>
    </message>
    <message>
        <source>%1 holds no setup</source>
        <translation>В %1 нет настроек</translation>
    </message>
    <message>
        <source>%1 in divisions: its scale is not known</source>
        <translation>%1 в делениях: масштаб неизвестен</translation>
    </message>
    <message>
        <source>%1 in divisions: math has no volts</source>
        <translation>%1 в делениях: у математики нет вольт</translation>
    </message>
    <message>
        <source>%1 is clipped: levels and harmonics are not the signal's own</source>
        <translation>%1 обрезан: уровни и гармоники не принадлежат самому сигналу</translation>
    </message>
    <message>
        <source>%1 is no value</source>
        <translation>%1 — не значение</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>записей: %1</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>строк: %1</translation>
    </message>
    <message>
        <source>%1 was changed by another program, and that is kept as %2</source>
        <translation>Файл %1 изменён другой программой; тот вариант сохранён как %2</translation>
    </message>
    <message>
        <source>%1 was not loaded whole</source>
        <translation>%1 загружен не полностью</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2</source>
        <translation>%1 не загружен: %2</translation>
    </message>
    <message>
        <source>%1, %2: different sweeps</source>
        <translation>%1, %2: разные развёртки</translation>
    </message>
    <message>
        <source>%1: %2 from line to line</source>
        <translation>%1: шаг линий %2</translation>
    </message>
    <message>
        <source>%1: %2 of %3 settings not confirmed</source>
        <translation>%1: не подтверждено настроек: %2 из %3</translation>
    </message>
    <message>
        <source>%1: %2, %3 to %4</source>
        <translation>%1: %2, с %3 до %4</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4</source>
        <translation>%1: %2, %3, %4</translation>
    </message>
    <message>
        <source>%1: drawn at position %2, not at %3</source>
        <translation>%1: кривая начерчена в положении %2, а не %3</translation>
    </message>
    <message>
        <source>%1: earlier records under these scales: %2</source>
        <translation>%1: прежних записей в этих масштабах: %2</translation>
    </message>
    <message>
        <source>%1: given up</source>
        <translation>%1: прервано</translation>
    </message>
    <message>
        <source>%1: given up, %2 of %3 not answered</source>
        <translation>%1: прервано, без ответа: %2 из %3</translation>
    </message>
    <message>
        <source>%1: last record %2 min ago</source>
        <translation>%1: последняя запись %2 мин назад</translation>
    </message>
    <message>
        <source>%1: last record %2 s ago</source>
        <translation>%1: последняя запись %2 с назад</translation>
    </message>
    <message>
        <source>%1: last record over %2 s ago</source>
        <translation>%1: последняя запись более %2 с назад</translation>
    </message>
    <message>
        <source>%1: live</source>
        <translation>%1: в реальном времени</translation>
    </message>
    <message>
        <source>%1: made at %2</source>
        <translation>%1: снято при %2</translation>
    </message>
    <message>
        <source>%1: mean of %2 spectra, %3 from line to line</source>
        <translation>%1: среднее из спектров: %2, шаг линий %3</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions</source>
        <translation>%1: нет ответа на запросы: %2 из %3</translation>
    </message>
    <message>
        <source>%1: no answer to %2 of %3 questions, %4 not asked</source>
        <translation>%1: нет ответа на запросы: %2 из %3, не задано: %4</translation>
    </message>
    <message>
        <source>%1: no record yet</source>
        <translation>%1: записи ещё не было</translation>
    </message>
    <message>
        <source>%1: not known whether recorded at %2</source>
        <translation>%1: неизвестно, записано ли при %2</translation>
    </message>
    <message>
        <source>%1: not the channel, but %2</source>
        <translation>%1: не канал, а %2</translation>
    </message>
    <message>
        <source>%1: question %2 of %3</source>
        <translation>%1: запрос %2 из %3</translation>
    </message>
    <message>
        <source>%1: question %2 of %3, %4 not answered</source>
        <translation>%1: запрос %2 из %3, без ответа: %4</translation>
    </message>
    <message>
        <source>%1: recorded at %2, not at %3</source>
        <translation>%1: записано при %2, а не при %3</translation>
    </message>
    <message>
        <source>%1: scale not known</source>
        <translation>%1: масштаб неизвестен</translation>
    </message>
    <message>
        <source>%1: setting %2 of %3</source>
        <translation>%1: настройка %2 из %3</translation>
    </message>
    <message>
        <source>%1: setting %2 of %3, %4 not confirmed</source>
        <translation>%1: настройка %2 из %3, не подтверждено: %4</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 min</source>
        <translation>%1: без изменений %2 мин</translation>
    </message>
    <message>
        <source>%1: unchanged for %2 s</source>
        <translation>%1: без изменений %2 с</translation>
    </message>
    <message>
        <source>%1: wait until the autoset is over</source>
        <translation>%1: подождите, пока закончится автонастройка</translation>
    </message>
    <message>
        <source>%1: wait until the settings have been sent</source>
        <translation>%1: подождите, пока параметры будут отправлены</translation>
    </message>
    <message>
        <source>(%1 measured so far)</source>
        <translation>(пока измерено %1)</translation>
    </message>
    <message>
        <source>(of several ports)</source>
        <translation>(с разных портов)</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 запись</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 строка</translation>
    </message>
    <message>
        <source>100mV per division</source>
        <translation>100 мВ на деление</translation>
    </message>
    <message>
        <source>100ms per division</source>
        <translation>100 мс на деление</translation>
    </message>
    <message>
        <source>100ns per division</source>
        <translation>100 нс на деление</translation>
    </message>
    <message>
        <source>100us per division</source>
        <translation>100 мкс на деление</translation>
    </message>
    <message>
        <source>10mV per division</source>
        <translation>10 мВ на деление</translation>
    </message>
    <message>
        <source>10ms per division</source>
        <translation>10 мс на деление</translation>
    </message>
    <message>
        <source>10ns per division</source>
        <translation>10 нс на деление</translation>
    </message>
    <message>
        <source>10us per division</source>
        <translation>10 мкс на деление</translation>
    </message>
    <message>
        <source>1V per division</source>
        <translation>1 В на деление</translation>
    </message>
    <message>
        <source>1ms per division</source>
        <translation>1 мс на деление</translation>
    </message>
    <message>
        <source>1s per division</source>
        <translation>1 с на деление</translation>
    </message>
    <message>
        <source>1us per division</source>
        <translation>1 мкс на деление</translation>
    </message>
    <message>
        <source>200mV per division</source>
        <translation>200 мВ на деление</translation>
    </message>
    <message>
        <source>200ms per division</source>
        <translation>200 мс на деление</translation>
    </message>
    <message>
        <source>200ns per division</source>
        <translation>200 нс на деление</translation>
    </message>
    <message>
        <source>200us per division</source>
        <translation>200 мкс на деление</translation>
    </message>
    <message>
        <source>20mV per division</source>
        <translation>20 мВ на деление</translation>
    </message>
    <message>
        <source>20ms per division</source>
        <translation>20 мс на деление</translation>
    </message>
    <message>
        <source>20ns per division</source>
        <translation>20 нс на деление</translation>
    </message>
    <message>
        <source>20us per division</source>
        <translation>20 мкс на деление</translation>
    </message>
    <message>
        <source>2V per division</source>
        <translation>2 В на деление</translation>
    </message>
    <message>
        <source>2mV per division</source>
        <translation>2 мВ на деление</translation>
    </message>
    <message>
        <source>2ms per division</source>
        <translation>2 мс на деление</translation>
    </message>
    <message>
        <source>2ns per division</source>
        <translation>2 нс на деление</translation>
    </message>
    <message>
        <source>2s per division</source>
        <translation>2 с на деление</translation>
    </message>
    <message>
        <source>2us per division</source>
        <translation>2 мкс на деление</translation>
    </message>
    <message>
        <source>500mV per division</source>
        <translation>500 мВ на деление</translation>
    </message>
    <message>
        <source>500ms per division</source>
        <translation>500 мс на деление</translation>
    </message>
    <message>
        <source>500ns per division</source>
        <translation>500 нс на деление</translation>
    </message>
    <message>
        <source>500us per division</source>
        <translation>500 мкс на деление</translation>
    </message>
    <message>
        <source>50mV per division</source>
        <translation>50 мВ на деление</translation>
    </message>
    <message>
        <source>50ms per division</source>
        <translation>50 мс на деление</translation>
    </message>
    <message>
        <source>50ns per division</source>
        <translation>50 нс на деление</translation>
    </message>
    <message>
        <source>50us per division</source>
        <translation>50 мкс на деление</translation>
    </message>
    <message>
        <source>5V per division</source>
        <translation>5 В на деление</translation>
    </message>
    <message>
        <source>5mV per division</source>
        <translation>5 мВ на деление</translation>
    </message>
    <message>
        <source>5ms per division</source>
        <translation>5 мс на деление</translation>
    </message>
    <message>
        <source>5ns per division</source>
        <translation>5 нс на деление</translation>
    </message>
    <message>
        <source>5s per division</source>
        <translation>5 с на деление</translation>
    </message>
    <message>
        <source>5us per division</source>
        <translation>5 мкс на деление</translation>
    </message>
    <message>
        <source>A record of the recorder is %1</source>
        <translation>Запись регистратора показана как %1</translation>
    </message>
    <message>
        <source>A reply is missing: the scales are certain in %1 s</source>
        <translation>Не хватает ответа: масштабы станут достоверными через %1 с</translation>
    </message>
    <message>
        <source>AC RMS</source>
        <translation>СКЗ перем.</translation>
    </message>
    <message>
        <source>About Tracewell</source>
        <translation>О программе Tracewell</translation>
    </message>
    <message>
        <source>Acquisition mode and averaging</source>
        <translation>Режим сбора и усреднение</translation>
    </message>
    <message>
        <source>Advanced trigger: Delay</source>
        <translation>Дополнительная синхронизация: задержка</translation>
    </message>
    <message>
        <source>Advanced trigger: Event</source>
        <translation>Дополнительная синхронизация: событие</translation>
    </message>
    <message>
        <source>Advanced trigger: Level</source>
        <translation>Дополнительная синхронизация: уровень</translation>
    </message>
    <message>
        <source>Advanced trigger: Mode</source>
        <translation>Дополнительная синхронизация: режим</translation>
    </message>
    <message>
        <source>Advanced trigger: Type</source>
        <translation>Дополнительная синхронизация: тип</translation>
    </message>
    <message>
        <source>Age of the traces</source>
        <translation>Давность осциллограмм</translation>
    </message>
    <message>
        <source>All of channel 1</source>
        <translation>Все для канала 1</translation>
    </message>
    <message>
        <source>All of channel 2</source>
        <translation>Все для канала 2</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>Амплитуда</translation>
    </message>
    <message>
        <source>Amplitude: high level less low level</source>
        <translation>Амплитуда: верхний уровень минус нижний</translation>
    </message>
    <message>
        <source>An error has stopped the acquisition</source>
        <translation>Сбор данных остановлен из-за ошибки</translation>
    </message>
    <message>
        <source>Answers that did not end in time: %1 in a minute</source>
        <translation>Ответы, не законченные в срок: %1 за минуту</translation>
    </message>
    <message>
        <source>Attenuation of the probe</source>
        <translation>Коэффициент деления щупа</translation>
    </message>
    <message>
        <source>Autoset</source>
        <translation>Автонастройка</translation>
    </message>
    <message>
        <source>Autoset: the scales are not known until it is over</source>
        <translation>Автонастройка: масштабы неизвестны, пока она не закончится</translation>
    </message>
    <message>
        <source>Bandwidth limit against noise</source>
        <translation>Ограничение полосы для подавления шума</translation>
    </message>
    <message>
        <source>Base</source>
        <translation>Основание</translation>
    </message>
    <message>
        <source>Before it: %1</source>
        <translation>Перед ней: %1</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Звонок</translation>
    </message>
    <message>
        <source>Both channels</source>
        <translation>Оба канала</translation>
    </message>
    <message>
        <source>Brightness of the grid on the instrument, in percent</source>
        <translation>Яркость сетки на экране прибора, в процентах</translation>
    </message>
    <message>
        <source>Brightness of the screen of the instrument</source>
        <translation>Яркость экрана прибора</translation>
    </message>
    <message>
        <source>Brightness of the traces on the instrument, in percent</source>
        <translation>Яркость луча на экране прибора, в процентах</translation>
    </message>
    <message>
        <source>Bytes that nobody asked for: %1 in a minute</source>
        <translation>Байты, которых никто не запрашивал: %1 за минуту</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
    <message>
        <source>Channel %1</source>
        <translation>Канал %1</translation>
    </message>
    <message>
        <source>Channel is displayed</source>
        <translation>Канал показан на экране</translation>
    </message>
    <message>
        <source>Channel of the voltage read-out</source>
        <translation>Канал для отсчёта напряжения</translation>
    </message>
    <message>
        <source>Channel to measure</source>
        <translation>Измеряемый канал</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Каналы</translation>
    </message>
    <message>
        <source>Choose and run measurements</source>
        <translation>Выбрать и выполнить измерения</translation>
    </message>
    <message>
        <source>Choose from the list of commands</source>
        <translation>Выбрать из списка команд</translation>
    </message>
    <message>
        <source>Choose what is measured first</source>
        <translation>Сначала выберите измерения</translation>
    </message>
    <message>
        <source>Chooses the file. A file with the same columns is continued</source>
        <translation>Выбор файла. Файл с теми же столбцами продолжается</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Click or drag: a record. Shift + drag: a stretch, Esc: none. Wheel: zoom. Arrow keys, Page Up and Down, Home, End: step. Dotted line: a gap</source>
        <translation>Щелчок или перетаскивание: запись. Shift + перетаскивание: участок, Esc: снять. Колесо: масштаб. Стрелки, Page Up и Down, Home, End: шаг. Пунктир: разрыв</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Colour behind the traces</source>
        <translation>Цвет фона под осциллограммами</translation>
    </message>
    <message>
        <source>Colour of the grid</source>
        <translation>Цвет сетки</translation>
    </message>
    <message>
        <source>Colour of the trace</source>
        <translation>Цвет осциллограммы</translation>
    </message>
    <message>
        <source>Colours and styles of the traces</source>
        <translation>Цвета и вид осциллограмм</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Командная строка</translation>
    </message>
    <message>
        <source>Command line: Enter sends</source>
        <translation>Командная строка: Enter отправляет</translation>
    </message>
    <message>
        <source>Commands of the instrument</source>
        <translation>Команды прибора</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message>
        <source>Copies the picture and its values for other programs (Ctrl+C)</source>
        <translation>Копирует рисунок и значения для других программ (Ctrl+C)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Копировать изображение</translation>
    </message>
    <message>
        <source>Copy the values</source>
        <translation>Копировать значения</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Количество</translation>
    </message>
    <message>
        <source>Coupling</source>
        <translation>Связь</translation>
    </message>
    <message>
        <source>Coupling of the input</source>
        <translation>Связь по входу</translation>
    </message>
    <message>
        <source>Coupling, probe, inversion and bandwidth limit of channel 1</source>
        <translation>Связь, щуп, инверсия и ограничение полосы канала 1</translation>
    </message>
    <message>
        <source>Coupling, probe, inversion and bandwidth limit of channel 2</source>
        <translation>Связь, щуп, инверсия и ограничение полосы канала 2</translation>
    </message>
    <message>
        <source>Cursors</source>
        <translation>Курсоры</translation>
    </message>
    <message>
        <source>Cursors across</source>
        <translation>Курсоры по X</translation>
    </message>
    <message>
        <source>Cursors off</source>
        <translation>Курсоры выключены</translation>
    </message>
    <message>
        <source>Cursors up</source>
        <translation>Курсоры по Y</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>Data bits of a byte</source>
        <translation>Битов данных в байте</translation>
    </message>
    <message>
        <source>Delay to CH1</source>
        <translation>Задержка к CH1</translation>
    </message>
    <message>
        <source>Description of the chosen waveform</source>
        <translation>Описание выбранной осциллограммы</translation>
    </message>
    <message>
        <source>Device of the port</source>
        <translation>Устройство порта</translation>
    </message>
    <message>
        <source>Display channel 1</source>
        <translation>Показывать канал 1</translation>
    </message>
    <message>
        <source>Display channel 2</source>
        <translation>Показывать канал 2</translation>
    </message>
    <message>
        <source>Divisions across: the time base is not known</source>
        <translation>По горизонтали деления: развёртка неизвестна</translation>
    </message>
    <message>
        <source>Dots at the samples</source>
        <translation>Точки на отсчётах</translation>
    </message>
    <message>
        <source>Double click: the error log</source>
        <translation>Двойной щелчок: журнал ошибок</translation>
    </message>
    <message>
        <source>Drawn as</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Draws each of the last 20 records, the older the paler</source>
        <translation>Рисует каждую из последних 20 записей, чем старше, тем бледнее</translation>
    </message>
    <message>
        <source>Draws the lowest and highest value of all these records</source>
        <translation>Рисует наименьшее и наибольшее значение всех этих записей</translation>
    </message>
    <message>
        <source>Draws the mean of all these records</source>
        <translation>Рисует среднее всех этих записей</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Диск</translation>
    </message>
    <message>
        <source>Duty</source>
        <translation>Заполнение</translation>
    </message>
    <message>
        <source>Empty the log</source>
        <translation>Очистить журнал</translation>
    </message>
    <message>
        <source>Ends the log; the file is whole</source>
        <translation>Завершает журнал; файл остаётся целым</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Огибающая</translation>
    </message>
    <message>
        <source>Error Log</source>
        <translation>Журнал ошибок</translation>
    </message>
    <message>
        <source>Error log</source>
        <translation>Журнал ошибок</translation>
    </message>
    <message>
        <source>Error log: %1 new</source>
        <translation>Журнал ошибок: новых %1</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Export stretch…</source>
        <translation>Экспорт участка…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Fading</source>
        <translation>Послесвечение</translation>
    </message>
    <message>
        <source>Fall time</source>
        <translation>Время спада</translation>
    </message>
    <message>
        <source>Flat top</source>
        <translation>С плоской вершиной</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>Folders; double click or Enter opens</source>
        <translation>Папки; двойной щелчок или Enter открывает</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Следовать</translation>
    </message>
    <message>
        <source>Format of the picture file</source>
        <translation>Формат файла рисунка</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Частота</translation>
    </message>
    <message>
        <source>Frequency Reject</source>
        <translation>Подавление частот</translation>
    </message>
    <message>
        <source>Goes to a pinned record; it stays when others go</source>
        <translation>Переход к закреплённой записи; она остаётся, когда другие уходят</translation>
    </message>
    <message>
        <source>Goes with the newest record (F)</source>
        <translation>Показывает самую новую запись (F)</translation>
    </message>
    <message>
        <source>Graph of the record</source>
        <translation>График записи</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>Ханн</translation>
    </message>
    <message>
        <source>Hann tells close frequencies apart, flat top shows true levels</source>
        <translation>Окно Ханна разделяет близкие частоты, окно с плоской вершиной показывает верные уровни</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Высокая контрастность</translation>
    </message>
    <message>
        <source>High level</source>
        <translation>Верхний уровень</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Наибольшее</translation>
    </message>
    <message>
        <source>Highest value</source>
        <translation>Наибольшее значение</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Подсказка</translation>
    </message>
    <message>
        <source>Horizontal position in divisions</source>
        <translation>Сдвиг по горизонтали, в делениях</translation>
    </message>
    <message>
        <source>Horizontal position in divisions; double click for zero</source>
        <translation>Сдвиг по горизонтали, в делениях; двойной щелчок: ноль</translation>
    </message>
    <message>
        <source>How many records before this one belong to the picture; a spectrum is their mean</source>
        <translation>Сколько записей перед этой входит в картину; спектр — их среднее</translation>
    </message>
    <message>
        <source>How records are taken</source>
        <translation>Как снимаются записи</translation>
    </message>
    <message>
        <source>How records are taken; type Average for averaging</source>
        <translation>Как снимаются записи; для усреднения введите Average</translation>
    </message>
    <message>
        <source>How the trace looks</source>
        <translation>Как выглядит осциллограмма</translation>
    </message>
    <message>
        <source>In use by another program: %1</source>
        <translation>Занят другой программой: %1</translation>
    </message>
    <message>
        <source>In use: %1. The line settings of the setup: %2</source>
        <translation>Используется: %1. Параметры линии в настройках: %2</translation>
    </message>
    <message>
        <source>In use: %1. The setup: %2 (OK in the RS-232 dialog applies it)</source>
        <translation>Используется: %1. В настройках: %2 (применит OK в окне RS-232)</translation>
    </message>
    <message>
        <source>It lies over the live traces now</source>
        <translation>Теперь она поверх живых осциллограмм</translation>
    </message>
    <message>
        <source>It may be the reply to another question</source>
        <translation>Возможно, это ответ на другой запрос</translation>
    </message>
    <message>
        <source>Keep what has been set</source>
        <translation>Оставить то, что установлено</translation>
    </message>
    <message>
        <source>Keeps this record, under the name, when others go</source>
        <translation>Сохраняет эту запись под этим именем, когда другие уходят</translation>
    </message>
    <message>
        <source>Lay a data file over the traces</source>
        <translation>Наложить файл данных на осциллограммы</translation>
    </message>
    <message>
        <source>Lay a saved waveform over the traces</source>
        <translation>Наложить сохранённую осциллограмму</translation>
    </message>
    <message>
        <source>Lays what is drawn over the live traces, as Load does</source>
        <translation>Накладывает показанное на живые осциллограммы, как «Загрузить»</translation>
    </message>
    <message>
        <source>Left out, with scales that are not known: %1</source>
        <translation>Пропущено, так как масштабы неизвестны: %1</translation>
    </message>
    <message>
        <source>Let go</source>
        <translation>Отпустить</translation>
    </message>
    <message>
        <source>Let the instrument find its settings</source>
        <translation>Прибор сам подберёт настройки</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Лицензия</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>Как на рабочем столе</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Пределы</translation>
    </message>
    <message>
        <source>Limits:</source>
        <translation>Пределы:</translation>
    </message>
    <message>
        <source>Line only</source>
        <translation>Только линия</translation>
    </message>
    <message>
        <source>Line rate in bits per second</source>
        <translation>Скорость линии, бит/с</translation>
    </message>
    <message>
        <source>Lit while the panel of the instrument is locked</source>
        <translation>Горит, пока передняя панель прибора заблокирована</translation>
    </message>
    <message>
        <source>Load the trace of channel 1</source>
        <translation>Загрузить осциллограмму канала 1</translation>
    </message>
    <message>
        <source>Load the trace of channel 2</source>
        <translation>Загрузить осциллограмму канала 2</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>Загружено: %1</translation>
    </message>
    <message>
        <source>Loaded in the place of %1</source>
        <translation>Загружено вместо %1</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Lost: %1</source>
        <translation>Потеряно: %1</translation>
    </message>
    <message>
        <source>Low level</source>
        <translation>Нижний уровень</translation>
    </message>
    <message>
        <source>Lowest</source>
        <translation>Наименьшее</translation>
    </message>
    <message>
        <source>Lowest value</source>
        <translation>Наименьшее значение</translation>
    </message>
    <message>
        <source>Manual and keys</source>
        <translation>Руководство и клавиши</translation>
    </message>
    <message>
        <source>Math may be on: choose an entry in its box to be sure</source>
        <translation>Возможно, включена математика: выберите пункт в её списке, чтобы знать точно</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Максимум</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Среднее</translation>
    </message>
    <message>
        <source>Measure nothing</source>
        <translation>Ничего не измерять</translation>
    </message>
    <message>
        <source>Measure time</source>
        <translation>Измерять время</translation>
    </message>
    <message>
        <source>Measure voltage</source>
        <translation>Измерять напряжение</translation>
    </message>
    <message>
        <source>Measure what is ticked</source>
        <translation>Измерить отмеченное</translation>
    </message>
    <message>
        <source>Measured from the samples; choose a line for its statistics</source>
        <translation>Измерено по отсчётам; выберите строку для её статистики</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Измерение</translation>
    </message>
    <message>
        <source>Measurement 1</source>
        <translation>Измерение 1</translation>
    </message>
    <message>
        <source>Measurement 10</source>
        <translation>Измерение 10</translation>
    </message>
    <message>
        <source>Measurement 11</source>
        <translation>Измерение 11</translation>
    </message>
    <message>
        <source>Measurement 12</source>
        <translation>Измерение 12</translation>
    </message>
    <message>
        <source>Measurement 13</source>
        <translation>Измерение 13</translation>
    </message>
    <message>
        <source>Measurement 14</source>
        <translation>Измерение 14</translation>
    </message>
    <message>
        <source>Measurement 15</source>
        <translation>Измерение 15</translation>
    </message>
    <message>
        <source>Measurement 16</source>
        <translation>Измерение 16</translation>
    </message>
    <message>
        <source>Measurement 2</source>
        <translation>Измерение 2</translation>
    </message>
    <message>
        <source>Measurement 3</source>
        <translation>Измерение 3</translation>
    </message>
    <message>
        <source>Measurement 4</source>
        <translation>Измерение 4</translation>
    </message>
    <message>
        <source>Measurement 5</source>
        <translation>Измерение 5</translation>
    </message>
    <message>
        <source>Measurement 6</source>
        <translation>Измерение 6</translation>
    </message>
    <message>
        <source>Measurement 7</source>
        <translation>Измерение 7</translation>
    </message>
    <message>
        <source>Measurement 8</source>
        <translation>Измерение 8</translation>
    </message>
    <message>
        <source>Measurement 9</source>
        <translation>Измерение 9</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Измерения</translation>
    </message>
    <message>
        <source>Measurements of each record into a file, for hours (Ctrl+L)</source>
        <translation>Измерения каждой записи в файл, часами (Ctrl+L)</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Идёт измерение</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Минимум</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Name of the pinned record</source>
        <translation>Имя закреплённой записи</translation>
    </message>
    <message>
        <source>Name of the plot</source>
        <translation>Имя кривой</translation>
    </message>
    <message>
        <source>New lines in the error log</source>
        <translation>Новые строки в журнале ошибок</translation>
    </message>
    <message>
        <source>Next cursor mode</source>
        <translation>Следующий режим курсоров</translation>
    </message>
    <message>
        <source>No answer to %1</source>
        <translation>Нет ответа на %1</translation>
    </message>
    <message>
        <source>No answer to the last %1 questions</source>
        <translation>Нет ответа на последние запросы: %1</translation>
    </message>
    <message>
        <source>No cursors</source>
        <translation>Без курсоров</translation>
    </message>
    <message>
        <source>No more records can be pinned</source>
        <translation>Больше записей закрепить нельзя</translation>
    </message>
    <message>
        <source>No program here shows the manual. It is %1</source>
        <translation>Здесь нет программы, которая показывает руководство. Оно находится в %1</translation>
    </message>
    <message>
        <source>No record for %1 s</source>
        <translation>Нет записи уже %1 с</translation>
    </message>
    <message>
        <source>No record yet: they are kept as they come</source>
        <translation>Записей ещё нет: они сохраняются по мере поступления</translation>
    </message>
    <message>
        <source>No reference is free: press %1 first</source>
        <translation>Нет свободной опорной осциллограммы: сначала нажмите %1</translation>
    </message>
    <message>
        <source>No reference is free: remove one in the panel first</source>
        <translation>Нет свободной опорной осциллограммы: сначала уберите одну на панели</translation>
    </message>
    <message>
        <source>No room for all of %1: press %2 first</source>
        <translation>Для всего %1 не хватает места: сначала нажмите «%2»</translation>
    </message>
    <message>
        <source>No rows while the traces are stopped</source>
        <translation>Строк нет, пока трассы остановлены</translation>
    </message>
    <message>
        <source>No set is chosen</source>
        <translation>Набор не выбран</translation>
    </message>
    <message>
        <source>No window</source>
        <translation>Без окна</translation>
    </message>
    <message>
        <source>Noise Reject</source>
        <translation>Подавление шума</translation>
    </message>
    <message>
        <source>None of channel 1</source>
        <translation>Ничего для канала 1</translation>
    </message>
    <message>
        <source>None of channel 2</source>
        <translation>Ничего для канала 2</translation>
    </message>
    <message>
        <source>Not a limit: %1. Write them as vpp &gt; 1.2 V; freq &lt; 990 Hz</source>
        <translation>Не предел: %1. Пишите так: vpp &gt; 1.2 V; freq &lt; 990 Hz</translation>
    </message>
    <message>
        <source>Not present: %1</source>
        <translation>Отсутствует: %1</translation>
    </message>
    <message>
        <source>Not sent: the text has more than one line</source>
        <translation>Не отправлено: в тексте больше одной строки</translation>
    </message>
    <message>
        <source>Not written: records have gone meanwhile; pin what you want to keep</source>
        <translation>Не записано: за это время записи исчезли; закрепите те, что нужно сохранить</translation>
    </message>
    <message>
        <source>Nothing pinned</source>
        <translation>Ничего не закреплено</translation>
    </message>
    <message>
        <source>Nothing to export: no record of this channel is there</source>
        <translation>Нечего экспортировать: записей этого канала там нет</translation>
    </message>
    <message>
        <source>Nothing to export: the scales of these records are not known</source>
        <translation>Нечего экспортировать: масштабы этих записей неизвестны</translation>
    </message>
    <message>
        <source>Nothing will be kept. %1</source>
        <translation>Ничего не будет сохранено. %1</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Уведомление</translation>
    </message>
    <message>
        <source>Number of the port</source>
        <translation>Номер порта</translation>
    </message>
    <message>
        <source>Number of the port; 0 is the simulated instrument</source>
        <translation>Номер порта; 0 означает имитатор прибора</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Of the stretch that is marked, else of all records</source>
        <translation>По выделенному участку, иначе по всем записям</translation>
    </message>
    <message>
        <source>Open the error log</source>
        <translation>Открыть журнал ошибок</translation>
    </message>
    <message>
        <source>Overshoot</source>
        <translation>Выброс</translation>
    </message>
    <message>
        <source>Parameter of the command</source>
        <translation>Параметр команды</translation>
    </message>
    <message>
        <source>Parity bit of a byte</source>
        <translation>Бит чётности байта</translation>
    </message>
    <message>
        <source>Peak to peak</source>
        <translation>Размах</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Период</translation>
    </message>
    <message>
        <source>Phase to CH1</source>
        <translation>Фаза к CH1</translation>
    </message>
    <message>
        <source>Pick the time per division</source>
        <translation>Выбрать время на деление</translation>
    </message>
    <message>
        <source>Pick the volts per division of channel 1</source>
        <translation>Выбрать вольты на деление канала 1</translation>
    </message>
    <message>
        <source>Pick the volts per division of channel 2</source>
        <translation>Выбрать вольты на деление канала 2</translation>
    </message>
    <message>
        <source>Picture of the chosen waveform</source>
        <translation>Рисунок выбранной осциллограммы</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Рисунки</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Закрепить</translation>
    </message>
    <message>
        <source>Pinned records</source>
        <translation>Закреплённые записи</translation>
    </message>
    <message>
        <source>Pinned: %1</source>
        <translation>Закреплено: %1</translation>
    </message>
    <message>
        <source>Pins each record that is beyond a limit</source>
        <translation>Закрепляет каждую запись за пределом</translation>
    </message>
    <message>
        <source>Positive width in percent of the period</source>
        <translation>Длительность положительного импульса в процентах периода</translation>
    </message>
    <message>
        <source>Print the graph</source>
        <translation>Напечатать график</translation>
    </message>
    <message>
        <source>Print the picture</source>
        <translation>Напечатать рисунок</translation>
    </message>
    <message>
        <source>Print the report</source>
        <translation>Напечатать отчёт</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Напечатано</translation>
    </message>
    <message>
        <source>Printed to %1</source>
        <translation>Напечатано в %1</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>СКЗ</translation>
    </message>
    <message>
        <source>Read the instrument again with the present port settings</source>
        <translation>Прочитать прибор заново с текущими настройками порта</translation>
    </message>
    <message>
        <source>Read the instrument, then start and stop the traces</source>
        <translation>Прочитать прибор, затем запускать и останавливать осциллограммы</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Регистратор</translation>
    </message>
    <message>
        <source>Recorder's log: %1</source>
        <translation>Журнал регистратора: %1</translation>
    </message>
    <message>
        <source>Recorder's log: %1 cannot be written. %2. Give them up?</source>
        <translation>Журнал регистратора: не удаётся записать %1. %2. Отказаться от них?</translation>
    </message>
    <message>
        <source>Records along time</source>
        <translation>Записи по времени</translation>
    </message>
    <message>
        <source>Records before this one</source>
        <translation>Записи перед этой</translation>
    </message>
    <message>
        <source>Records in an average</source>
        <translation>Число усредняемых записей</translation>
    </message>
    <message>
        <source>Records stay short: %1 of %2 bytes came</source>
        <translation>Записи приходят неполными: %1 из %2 байт</translation>
    </message>
    <message>
        <source>Records that came too late: %1 in a minute</source>
        <translation>Записи, пришедшие слишком поздно: %1 за минуту</translation>
    </message>
    <message>
        <source>Records that did not come: %1 in a minute</source>
        <translation>Записи, которые не пришли: %1 за минуту</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Убрать %1</translation>
    </message>
    <message>
        <source>Remove the loaded waveforms</source>
        <translation>Убрать загруженные осциллограммы</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Replies and records</source>
        <translation>Ответы и записи</translation>
    </message>
    <message>
        <source>Rise time</source>
        <translation>Время нарастания</translation>
    </message>
    <message>
        <source>Root mean square</source>
        <translation>Среднеквадратичное значение</translation>
    </message>
    <message>
        <source>Rows beyond a limit name it. The short names stand in the list of measurements</source>
        <translation>Строки за пределом называют его. Краткие имена — в списке измерений</translation>
    </message>
    <message>
        <source>Run or stop the acquisition of the instrument itself</source>
        <translation>Пуск или остановка сбора данных самого прибора</translation>
    </message>
    <message>
        <source>Run the quick time measurements</source>
        <translation>Выполнить быстрые измерения времени</translation>
    </message>
    <message>
        <source>Run-time error %1</source>
        <translation>Ошибка выполнения %1</translation>
    </message>
    <message>
        <source>SIMULATED</source>
        <translation>ИМИТАЦИЯ</translation>
    </message>
    <message>
        <source>Samples as dots</source>
        <translation>Отсчёты точками</translation>
    </message>
    <message>
        <source>Samples joined by lines</source>
        <translation>Отсчёты соединены линиями</translation>
    </message>
    <message>
        <source>Samples of a record</source>
        <translation>Число отсчётов в записи</translation>
    </message>
    <message>
        <source>Save as a waveform set</source>
        <translation>Сохранить как осциллограмму</translation>
    </message>
    <message>
        <source>Save picture and data</source>
        <translation>Сохранить рисунок и данные</translation>
    </message>
    <message>
        <source>Save the log and close</source>
        <translation>Сохранить журнал и закрыть</translation>
    </message>
    <message>
        <source>Save the report as a file</source>
        <translation>Сохранить отчёт в файл</translation>
    </message>
    <message>
        <source>Save the setup and close</source>
        <translation>Сохранить настройки и закрыть</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Сохранено: %1</translation>
    </message>
    <message>
        <source>Saved %1, %2 and %3 in %4</source>
        <translation>Сохранены %1, %2 и %3 в %4</translation>
    </message>
    <message>
        <source>Saved waveforms</source>
        <translation>Сохранённые осциллограммы</translation>
    </message>
    <message>
        <source>Saves this record as a waveform set, which Load in the panel shows (Ctrl+S)</source>
        <translation>Сохраняет эту запись как осциллограмму, которую может загрузить панель (Ctrl+S)</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Сохранить…</translation>
    </message>
    <message>
        <source>Scales that are not the traces'</source>
        <translation>Масштабы, не относящиеся к осциллограммам</translation>
    </message>
    <message>
        <source>Send the command</source>
        <translation>Отправить команду</translation>
    </message>
    <message>
        <source>Set it and stay open, to try others</source>
        <translation>Установить и не закрывать, чтобы попробовать другие</translation>
    </message>
    <message>
        <source>Setup loaded from %1</source>
        <translation>Настройки загружены из %1</translation>
    </message>
    <message>
        <source>Setup saved to %1</source>
        <translation>Настройки сохранены в %1</translation>
    </message>
    <message>
        <source>Show in the panel</source>
        <translation>Показать на панели</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Фронт</translation>
    </message>
    <message>
        <source>Sounds the bell at each record that is beyond a limit</source>
        <translation>Звонит при каждой записи за пределом</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Source, mode, slope and coupling of the trigger</source>
        <translation>Источник, режим, фронт и связь синхронизации</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Спектр</translation>
    </message>
    <message>
        <source>Start the log…</source>
        <translation>Начать журнал…</translation>
    </message>
    <message>
        <source>State of the acquisition</source>
        <translation>Состояние сбора данных</translation>
    </message>
    <message>
        <source>State of the connection</source>
        <translation>Состояние связи с прибором</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Std deviation</source>
        <translation>Ст. отклонение</translation>
    </message>
    <message>
        <source>Stop bits behind a byte</source>
        <translation>Стоп-биты после байта</translation>
    </message>
    <message>
        <source>Stop the log</source>
        <translation>Остановить журнал</translation>
    </message>
    <message>
        <source>Stopped: press %1 to go on</source>
        <translation>Остановлено: для продолжения нажмите %1</translation>
    </message>
    <message>
        <source>Sum or difference of the channels</source>
        <translation>Сумма или разность каналов</translation>
    </message>
    <message>
        <source>Take all texts away</source>
        <translation>Убрать все надписи</translation>
    </message>
    <message>
        <source>Take the last text away</source>
        <translation>Убрать последнюю надпись</translation>
    </message>
    <message>
        <source>Text to write onto the picture</source>
        <translation>Текст надписи на рисунке</translation>
    </message>
    <message>
        <source>The .csv is empty: no whole record of %1</source>
        <translation>Файл .csv пуст: целой записи %1 нет</translation>
    </message>
    <message>
        <source>The acquisition has stopped: %1</source>
        <translation>Сбор данных остановлен: %1</translation>
    </message>
    <message>
        <source>The channels that are shown, stepped through and measured</source>
        <translation>Каналы, которые показаны, просматриваются и измеряются</translation>
    </message>
    <message>
        <source>The columns of the log</source>
        <translation>Столбцы журнала</translation>
    </message>
    <message>
        <source>The connection is lost</source>
        <translation>Связь потеряна</translation>
    </message>
    <message>
        <source>The connection is lost: %1</source>
        <translation>Связь потеряна: %1</translation>
    </message>
    <message>
        <source>The cursors were read in another scale</source>
        <translation>Курсоры отсчитаны в другом масштабе</translation>
    </message>
    <message>
        <source>The data file</source>
        <translation>Файл данных</translation>
    </message>
    <message>
        <source>The disk is full; waiting in memory: %1</source>
        <translation>Диск заполнен; ожидает в памяти: %1</translation>
    </message>
    <message>
        <source>The file is not as a panel saves it: its trace may be wrong</source>
        <translation>Файл не такой, каким его сохраняет панель: его кривая может быть неверной</translation>
    </message>
    <message>
        <source>The folder that is shown</source>
        <translation>Показанная папка</translation>
    </message>
    <message>
        <source>The instrument is being read</source>
        <translation>Идёт чтение прибора</translation>
    </message>
    <message>
        <source>The instrument is busy: %1</source>
        <translation>Прибор занят: %1</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1</source>
        <translation>Прибор остановлен: нажмите %1</translation>
    </message>
    <message>
        <source>The instrument is stopped: press %1 twice</source>
        <translation>Прибор остановлен: дважды нажмите %1</translation>
    </message>
    <message>
        <source>The instrument may have another value</source>
        <translation>У прибора может быть другое значение</translation>
    </message>
    <message>
        <source>The knob stands there already: turn it away and back to send its scale</source>
        <translation>Ручка уже стоит там: поверните её в сторону и обратно, чтобы отправить масштаб</translation>
    </message>
    <message>
        <source>The last question had no answer: press %1</source>
        <translation>На последний запрос нет ответа: нажмите «%1»</translation>
    </message>
    <message>
        <source>The log goes on</source>
        <translation>Журнал продолжается</translation>
    </message>
    <message>
        <source>The log has ended</source>
        <translation>Журнал завершён</translation>
    </message>
    <message>
        <source>The old %1 is kept as %2</source>
        <translation>Прежний файл %1 сохранён как %2</translation>
    </message>
    <message>
        <source>The picture to save</source>
        <translation>Сохраняемый рисунок</translation>
    </message>
    <message>
        <source>The picture's name must end in png, jpg, bmp, gif, pcx or tif</source>
        <translation>Имя рисунка должно оканчиваться на png, jpg, bmp, gif, pcx или tif</translation>
    </message>
    <message>
        <source>The port in use</source>
        <translation>Используемый порт</translation>
    </message>
    <message>
        <source>The product</source>
        <translation>Изделие</translation>
    </message>
    <message>
        <source>The report</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>The same sweep was fetched: %1</source>
        <translation>Та же развёртка получена: %1</translation>
    </message>
    <message>
        <source>The scales are not known: press %1 to read them</source>
        <translation>Масштабы неизвестны: нажмите %1, чтобы прочитать их</translation>
    </message>
    <message>
        <source>The scales are not known: press %1 to read them, then F5 to go on</source>
        <translation>Масштабы неизвестны: %1 — прочитать, F5 — продолжить</translation>
    </message>
    <message>
        <source>The scales may be those of another instrument: press %1 to read them</source>
        <translation>Масштабы могут быть от другого прибора: нажмите «%1», чтобы прочитать их</translation>
    </message>
    <message>
        <source>The setup could not be saved to %1.</source>
        <translation>Не удалось сохранить настройки в %1.</translation>
    </message>
    <message>
        <source>The unit of the levels</source>
        <translation>Единица уровней</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>There is no such port</source>
        <translation>Такого порта нет</translation>
    </message>
    <message>
        <source>These traces are of an earlier connection</source>
        <translation>Эти осциллограммы получены по прежнему соединению</translation>
    </message>
    <message>
        <source>This record alone</source>
        <translation>Только эта запись</translation>
    </message>
    <message>
        <source>This record is cut: a set needs a whole one</source>
        <translation>Эта запись обрезана, а нужна целая</translation>
    </message>
    <message>
        <source>This record may go with the others again</source>
        <translation>Эта запись снова может уйти с другими</translation>
    </message>
    <message>
        <source>This version has new files beside those that you have changed: %1</source>
        <translation>Новые файлы этой версии лежат рядом с изменёнными вами: %1</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Time of the falling edge</source>
        <translation>Время спада</translation>
    </message>
    <message>
        <source>Time of the rising edge</source>
        <translation>Время нарастания</translation>
    </message>
    <message>
        <source>Time per division</source>
        <translation>Время на деление</translation>
    </message>
    <message>
        <source>Time per division: drag, wheel, arrow keys, or click a value</source>
        <translation>Время на деление: мышью, колёсиком, стрелками или щелчком по значению</translation>
    </message>
    <message>
        <source>Time that the instrument takes</source>
        <translation>Время, нужное прибору</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Вершина</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Осциллограмма</translation>
    </message>
    <message>
        <source>Trace upside down</source>
        <translation>Осциллограмма перевёрнута</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Осциллограммы</translation>
    </message>
    <message>
        <source>Traces paused for %1</source>
        <translation>Кривые на паузе: %1</translation>
    </message>
    <message>
        <source>Traces: drag the cursors, or move them with the arrow keys; C changes the cursor. Double click or E: larger, Escape: back</source>
        <translation>Осциллограммы: курсоры двигаются мышью или стрелками; C переключает курсор. Двойной щелчок или E: крупнее, Esc: обратно</translation>
    </message>
    <message>
        <source>Trigger level in volts</source>
        <translation>Уровень синхронизации, в вольтах</translation>
    </message>
    <message>
        <source>Trigger level in volts; double click for zero</source>
        <translation>Уровень синхронизации, в вольтах; двойной щелчок: ноль</translation>
    </message>
    <message>
        <source>Two cursors with their distance: drag them, or use the arrow keys in the graph</source>
        <translation>Два курсора и расстояние: перетаскивайте их или пользуйтесь стрелками на графике</translation>
    </message>
    <message>
        <source>V/div not known</source>
        <translation>В/дел неизвестно</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Vertical position of channel 1 in divisions</source>
        <translation>Смещение канала 1 по вертикали, в делениях</translation>
    </message>
    <message>
        <source>Vertical position of channel 1 in divisions; double click for zero</source>
        <translation>Смещение канала 1 по вертикали, в делениях; двойной щелчок: ноль</translation>
    </message>
    <message>
        <source>Vertical position of channel 2 in divisions</source>
        <translation>Смещение канала 2 по вертикали, в делениях</translation>
    </message>
    <message>
        <source>Vertical position of channel 2 in divisions; double click for zero</source>
        <translation>Смещение канала 2 по вертикали, в делениях; двойной щелчок: ноль</translation>
    </message>
    <message>
        <source>Volts per division of channel 1</source>
        <translation>Вольты на деление канала 1</translation>
    </message>
    <message>
        <source>Volts per division of channel 1: drag, wheel, arrow keys, or click a value</source>
        <translation>Вольты на деление канала 1: мышью, колёсиком, стрелками или щелчком по значению</translation>
    </message>
    <message>
        <source>Volts per division of channel 2</source>
        <translation>Вольты на деление канала 2</translation>
    </message>
    <message>
        <source>Volts per division of channel 2: drag, wheel, arrow keys, or click a value</source>
        <translation>Вольты на деление канала 2: мышью, колёсиком, стрелками или щелчком по значению</translation>
    </message>
    <message>
        <source>Waiting for the answer to %1</source>
        <translation>Ожидание ответа на %1</translation>
    </message>
    <message>
        <source>Waiting in memory: %1. %2</source>
        <translation>Ожидает в памяти: %1. %2</translation>
    </message>
    <message>
        <source>What is drawn of the records</source>
        <translation>Что рисуется из записей</translation>
    </message>
    <message>
        <source>What is set</source>
        <translation>Что устанавливается</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Что на нём показано</translation>
    </message>
    <message>
        <source>What the command does</source>
        <translation>Что делает команда</translation>
    </message>
    <message>
        <source>When the last record of each channel came</source>
        <translation>Когда пришла последняя запись каждого канала</translation>
    </message>
    <message>
        <source>Who saves it</source>
        <translation>Кто сохраняет</translation>
    </message>
    <message>
        <source>Why the set is not loaded</source>
        <translation>Почему набор не загружен</translation>
    </message>
    <message>
        <source>Width of the negative pulse</source>
        <translation>Длительность отрицательного импульса</translation>
    </message>
    <message>
        <source>Width of the positive pulse</source>
        <translation>Длительность положительного импульса</translation>
    </message>
    <message>
        <source>Window of the spectrum</source>
        <translation>Окно спектра</translation>
    </message>
    <message>
        <source>With the last %1</source>
        <translation>С последними: %1</translation>
    </message>
    <message>
        <source>With the one before</source>
        <translation>С предыдущей</translation>
    </message>
    <message>
        <source>Without CH%1, which is of another sweep</source>
        <translation>Без CH%1: другая развёртка</translation>
    </message>
    <message>
        <source>Write the shown record to text.csv</source>
        <translation>Записать показанную запись в text.csv</translation>
    </message>
    <message>
        <source>Write the text where the picture is clicked</source>
        <translation>Писать текст там, где щёлкнули по рисунку</translation>
    </message>
    <message>
        <source>Writes the marked stretch, else this record, as CSV in volts and seconds (Ctrl+E)</source>
        <translation>Пишет выделенный участок, иначе эту запись, как CSV в вольтах и секундах (Ctrl+E)</translation>
    </message>
    <message>
        <source>X-Y</source>
        <translation>X-Y</translation>
    </message>
    <message>
        <source>X-Y needs both channels of one sweep: display both, press Run/Stop, and wait for both</source>
        <translation>X-Y требует обоих каналов одной развёртки: покажите оба, нажмите Run/Stop и дождитесь обоих</translation>
    </message>
    <message>
        <source>another port</source>
        <translation>другой порт</translation>
    </message>
    <message>
        <source>clipped</source>
        <translation>обрезано</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>ровный</translation>
    </message>
    <message>
        <source>from the zero of %1:</source>
        <translation>от нуля %1:</translation>
    </message>
    <message>
        <source>irregular</source>
        <translation>нерегулярно</translation>
    </message>
    <message>
        <source>less than a period</source>
        <translation>меньше периода</translation>
    </message>
    <message>
        <source>math, which has no volts</source>
        <translation>математика, без вольт</translation>
    </message>
    <message>
        <source>more than 500 lines of data</source>
        <translation>более 500 строк данных</translation>
    </message>
    <message>
        <source>not certain</source>
        <translation>не точно известно</translation>
    </message>
    <message>
        <source>not of one sweep</source>
        <translation>разные развёртки</translation>
    </message>
    <message>
        <source>nothing fetched</source>
        <translation>ничего не получено</translation>
    </message>
    <message>
        <source>opened anew</source>
        <translation>порт открыт заново</translation>
    </message>
    <message>
        <source>other period</source>
        <translation>другой период</translation>
    </message>
    <message>
        <source>other scales</source>
        <translation>другие масштабы</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>закреплена</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>порт %1</translation>
    </message>
    <message>
        <source>port %1 - %2</source>
        <translation>порт %1 - %2</translation>
    </message>
    <message>
        <source>port %1, %2 baud %3</source>
        <translation>порт %1, %2 бод %3</translation>
    </message>
    <message>
        <source>record %1 of %2</source>
        <translation>запись %1 из %2</translation>
    </message>
    <message>
        <source>record cut</source>
        <translation>запись обрезана</translation>
    </message>
    <message>
        <source>s/div not known</source>
        <translation>с/дел неизвестно</translation>
    </message>
    <message>
        <source>scale not known</source>
        <translation>масштаб неизвестен</translation>
    </message>
    <message>
        <source>simulated instrument</source>
        <translation>имитатор прибора</translation>
    </message>
    <message>
        <source>stopped meanwhile</source>
        <translation>была остановка</translation>
    </message>
    <message>
        <source>too few samples</source>
        <translation>мало отсчётов</translation>
    </message>
</context>
</TS>
