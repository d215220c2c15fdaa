<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>AboutCmpEd</name>
    <message>
        <source>About Campaign Editor</source>
        <translation>О редакторе кампаний</translation>
    </message>
    <message>
        <source>Version Ravn</source>
        <translation>Версия Ravn</translation>
    </message>
    <message>
        <source>Icon of the editor</source>
        <translation>Значок редактора</translation>
    </message>
</context>
<context>
    <name>AskDeleteAll</name>
    <message>
        <source>Delete All</source>
        <translation>Удалить все</translation>
    </message>
    <message>
        <source>Do you really want to delete all scenarios?</source>
        <translation>Действительно удалить все сценарии?</translation>
    </message>
</context>
<context>
    <name>ConvertCampaign</name>
    <message>
        <source>Convert Campaign</source>
        <translation>Преобразование кампании</translation>
    </message>
    <message>
        <source>Convert to...</source>
        <translation>Преобразовать в...</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Scenario count:</source>
        <translation>Число сценариев:</translation>
    </message>
    <message>
        <source>Region count:</source>
        <translation>Число регионов:</translation>
    </message>
    <message>
        <source>Some scenarios will be deleted!</source>
        <translation>Некоторые сценарии будут удалены!</translation>
    </message>
    <message>
        <source>Convert to campaign without map</source>
        <translation>Преобразовать в кампанию без карты</translation>
    </message>
    <message>
        <source>Convert to campaign with map</source>
        <translation>Преобразовать в кампанию с картой</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Карта</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Сохранение изменений</translation>
    </message>
    <message>
        <source>Do you really want to convert the campaign to different type? Some scenarios will be deleted!</source>
        <translation>Действительно преобразовать кампанию в другой тип? Некоторые сценарии будут удалены!</translation>
    </message>
    <message>
        <source>Do you really want to convert the campaign to different type?</source>
        <translation>Действительно преобразовать кампанию в другой тип?</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предварительный просмотр</translation>
    </message>
</context>
<context>
    <name>EditCampaign</name>
    <message>
        <source>Campaign Properties</source>
        <translation>Свойства кампании</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Scenario &amp;difficulty is user selectable</source>
        <translation>Игрок может выбирать &amp;сложность сценария</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Map:</source>
        <translation>Карта:</translation>
    </message>
    <message>
        <source>Map name</source>
        <translation>Название карты</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Карта</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Сохранение изменений</translation>
    </message>
    <message>
        <source>Do you really want to change the background?</source>
        <translation>Действительно сменить фон?</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предварительный просмотр</translation>
    </message>
</context>
<context>
    <name>GameDialog</name>
    <message>
        <source>Where is the game Eldmark Saga with its add-on Ravn? Choose its folder: the one with ravn.dat, Ravn_settings.ini and the folder Data.</source>
        <translation>Где находится игра Eldmark Saga с дополнением Ravn? Выберите её папку: ту, в которой лежат ravn.dat, Ravn_settings.ini и папка Data.</translation>
    </message>
    <message>
        <source>The game isn't in this folder any more:
%1</source>
        <translation>Игры больше нет в этой папке:
%1</translation>
    </message>
    <message>
        <source>Folder of the Game</source>
        <translation>Папка игры</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Not the Game's Folder</source>
        <translation>Это не папка игры</translation>
    </message>
    <message>
        <source>This is not the game's folder:
%1

It lacks: %2</source>
        <translation>Это не папка игры:
%1

В ней не хватает: %2</translation>
    </message>
</context>
<context>
    <name>HeroCrossover</name>
    <message>
        <source>Source scenario</source>
        <translation>Исходный сценарий</translation>
    </message>
    <message>
        <source>Player position</source>
        <translation>Позиция игрока</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Chosen hero crossovers</source>
        <translation>Выбранные переходы героев</translation>
    </message>
</context>
<context>
    <name>HeroCrossoverDialog</name>
    <message>
        <source>Edit Hero Crossover Option</source>
        <translation>Вариант перехода героя</translation>
    </message>
    <message>
        <source>Source scenario:</source>
        <translation>Исходный сценарий:</translation>
    </message>
    <message>
        <source>Player position:</source>
        <translation>Позиция игрока:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Eldmark Saga® Campaign Editor</source>
        <translation>Редактор кампаний Eldmark Saga®</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Правка</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Создать...</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Открыть...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>Export Texts...</source>
        <translation>Экспорт текстов...</translation>
    </message>
    <message>
        <source>Import Texts...</source>
        <translation>Импорт текстов...</translation>
    </message>
    <message>
        <source>Refresh Scenario Maps</source>
        <translation>Обновить карты сценариев</translation>
    </message>
    <message>
        <source>Export Scenario Maps</source>
        <translation>Экспорт карт сценариев</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Campaign Properties</source>
        <translation>Свойства кампании</translation>
    </message>
    <message>
        <source>Scenario Properties</source>
        <translation>Свойства сценария</translation>
    </message>
    <message>
        <source>About Campaign Editor...</source>
        <translation>О редакторе кампаний...</translation>
    </message>
    <message>
        <source>Convert campaign...</source>
        <translation>Преобразовать кампанию...</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>%1%3 - %2</source>
        <translation>%1%3 - %2</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
    <message>
        <source>Open Map File</source>
        <translation>Открыть файл карты</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Eldmark Saga campaign (*.e3c);;All Files (*)</source>
        <translation>Кампания Eldmark Saga (*.e3c);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Не удаётся прочитать файл %1:
%2.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Не удаётся записать файл %1:
%2.</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Это не обычный файл</translation>
    </message>
    <message>
        <source>Save changes to %1?</source>
        <translation>Сохранить изменения в %1?</translation>
    </message>
    <message>
        <source>%1 has changed on the disk since it was opened or saved here. Overwrite it?</source>
        <translation>Файл %1 изменился на диске с тех пор, как был открыт или сохранён здесь. Перезаписать его?</translation>
    </message>
    <message>
        <source>Changes to %1 were not saved. Open the copy kept on %2?</source>
        <translation>Изменения в %1 не были сохранены. Открыть копию от %2?</translation>
    </message>
    <message>
        <source>Unable to generate image</source>
        <translation>Не удаётся создать изображение</translation>
    </message>
    <message>
        <source>Can&apos;t find %1 file in lod file</source>
        <translation>Файл %1 не найден в архивах lod</translation>
    </message>
    <message>
        <source>Can&apos;t open file %1</source>
        <translation>Не удаётся открыть файл %1</translation>
    </message>
    <message>
        <source>Invalid campaign file version!

File version = %1
Current version = %2</source>
        <translation>Неверная версия файла кампании!

Версия файла = %1
Текущая версия = %2</translation>
    </message>
    <message>
        <source>Unsupported version!

File subversion = %1
Current subversion = %2</source>
        <translation>Версия не поддерживается!

Подверсия файла = %1
Текущая подверсия = %2</translation>
    </message>
    <message>
        <source>Campaign Editor cannot be launched because Ravn.dat was not found. 
Ravn.dat must be in Eldmark root folder.</source>
        <translation>Редактор кампаний не может быть запущен: файл Ravn.dat не найден. 
Файл Ravn.dat должен находиться в корневой папке Eldmark.</translation>
    </message>
    <message>
        <source>Eldmark Campaign Editor cannot be launched because Ravn_settings.ini was not found. 
Ravn_settings.ini must be in Eldmark root folder.</source>
        <translation>Редактор кампаний Eldmark не может быть запущен: файл Ravn_settings.ini не найден. 
Файл Ravn_settings.ini должен находиться в корневой папке Eldmark.</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All Files (*)</source>
        <translation>Текстовые файлы (*.txt);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Cannot read file %1 - incorrect campaign text:
%2.</source>
        <translation>Не удалось прочитать файл %1 — неверный текст кампании:
%2.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Cannot read file %1. Map has errors.</source>
        <translation>Не удалось прочитать файл %1. В карте есть ошибки.</translation>
    </message>
    <message>
        <source>Failed to open the sound driver.</source>
        <translation>Не удалось открыть звуковой драйвер.</translation>
    </message>
</context>
<context>
    <name>MapBrowser</name>
    <message>
        <source>Campaign map</source>
        <translation>Карта кампании</translation>
    </message>
</context>
<context>
    <name>MyQGraphicsView</name>
    <message>
        <source>Properties...</source>
        <translation>Свойства...</translation>
    </message>
</context>
<context>
    <name>NewCampaign</name>
    <message>
        <source>Campaign map</source>
        <translation>Карта кампании</translation>
    </message>
    <message>
        <source>Campaign background</source>
        <translation>Фон кампании</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The game has no campaign map %1</source>
        <translation>В игре нет карты кампании %1</translation>
    </message>
    <message>
        <source>Incorrect or damaged file.</source>
        <translation>Неверный или повреждённый файл.</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Базовый</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Продвинутый</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Эксперт</translation>
    </message>
    <message>
        <source>Player %1 (%2)</source>
        <translation>Игрок %1 (%2)</translation>
    </message>
    <message>
        <source>Most powerful hero</source>
        <translation>Самый сильный герой</translation>
    </message>
    <message>
        <source>Generated hero</source>
        <translation>Созданный герой</translation>
    </message>
    <message>
        <source>Random hero</source>
        <translation>Случайный герой</translation>
    </message>
    <message>
        <source> (in town)</source>
        <translation> (в городе)</translation>
    </message>
    <message>
        <source> (on map)</source>
        <translation> (на карте)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Пусто</translation>
    </message>
    <message>
        <source>%1. Empty</source>
        <translation>%1. Пусто</translation>
    </message>
    <message>
        <source>No scenario</source>
        <translation>Нет сценария</translation>
    </message>
    <message>
        <source>Give %1 spell to %2</source>
        <translation>%2 получает заклинание «%1»</translation>
    </message>
    <message>
        <source>Give %1 %2 to %3</source>
        <translation>%3 получает: %2 (%1)</translation>
    </message>
    <message>
        <source>Build %1 at Main Town</source>
        <translation>Построить в главном городе: %1</translation>
    </message>
    <message>
        <source>+%1 %2</source>
        <translation>+%1 %2</translation>
    </message>
    <message>
        <source>Give %1 to %2</source>
        <translation>%2 получает: %1</translation>
    </message>
    <message>
        <source>Give %1 Spell Scroll to %2</source>
        <translation>%2 получает свиток с заклинанием «%1»</translation>
    </message>
    <message>
        <source>Receive %1 %2</source>
        <translation>Получить: %2 (%1)</translation>
    </message>
</context>
<context>
    <name>ScenarioCrossover</name>
    <message>
        <source>Crossover heroes details</source>
        <translation>Что герой сохраняет при переходе</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Опыт</translation>
    </message>
    <message>
        <source>Primary Skills</source>
        <translation>Первичные навыки</translation>
    </message>
    <message>
        <source>Secondary Skills</source>
        <translation>Вторичные навыки</translation>
    </message>
    <message>
        <source>Spells</source>
        <translation>Заклинания</translation>
    </message>
    <message>
        <source>Artifacts</source>
        <translation>Артефакты</translation>
    </message>
    <message>
        <source>Creature types:</source>
        <translation>Типы существ:</translation>
    </message>
    <message>
        <source>Crossover Artifacts:</source>
        <translation>Переносимые артефакты:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ни одного</translation>
    </message>
    <message>
        <source>All creature types</source>
        <translation>Все типы существ</translation>
    </message>
    <message>
        <source>None of the creature types</source>
        <translation>Ни один тип существ</translation>
    </message>
    <message>
        <source>All crossover artifacts</source>
        <translation>Все переносимые артефакты</translation>
    </message>
    <message>
        <source>None of the crossover artifacts</source>
        <translation>Ни один переносимый артефакт</translation>
    </message>
</context>
<context>
    <name>ScenarioGeneral</name>
    <message>
        <source>(None)</source>
        <translation>(нет)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Eldmark Saga map (*.e3m);;All Files (*)</source>
        <translation>Карта Eldmark Saga (*.e3m);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Не удалось прочитать файл %1:
%2.</translation>
    </message>
    <message>
        <source>Cannot read file %1. Map has errors.</source>
        <translation>Не удалось прочитать файл %1. В карте есть ошибки.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Не удалось записать файл %1:
%2.</translation>
    </message>
</context>
<context>
    <name>ScenarioInfo</name>
    <message>
        <source>Scenario Properties</source>
        <translation>Свойства сценария</translation>
    </message>
    <message>
        <source>Scenario list</source>
        <translation>Список сценариев</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Удалить все</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Основное</translation>
    </message>
    <message>
        <source>Prologue</source>
        <translation>Пролог</translation>
    </message>
    <message>
        <source>Epilogue</source>
        <translation>Эпилог</translation>
    </message>
    <message>
        <source>Crossover Options</source>
        <translation>Переход героев</translation>
    </message>
    <message>
        <source>Starting Options</source>
        <translation>Начальные условия</translation>
    </message>
    <message>
        <source>Move scenario up</source>
        <translation>Переместить сценарий выше</translation>
    </message>
    <message>
        <source>Move scenario down</source>
        <translation>Переместить сценарий ниже</translation>
    </message>
</context>
<context>
    <name>ScenarioPrologue</name>
    <message>
        <source>Has prologue</source>
        <translation>Есть пролог</translation>
    </message>
    <message>
        <source>Has epilogue</source>
        <translation>Есть эпилог</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Настроить</translation>
    </message>
    <message>
        <source>Video:</source>
        <translation>Видео:</translation>
    </message>
    <message>
        <source>Music:</source>
        <translation>Музыка:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Сообщение:</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>Кадр видео</translation>
    </message>
    <message>
        <source>Play or pause the music</source>
        <translation>Воспроизвести или приостановить музыку</translation>
    </message>
    <message>
        <source>Prologue %1</source>
        <translation>Пролог %1</translation>
    </message>
    <message>
        <source>Epilogue %1</source>
        <translation>Эпилог %1</translation>
    </message>
</context>
<context>
    <name>ScenarioStartOptions</name>
    <message>
        <source>Starting options are:</source>
        <translation>Что выбирает игрок в начале:</translation>
    </message>
    <message>
        <source>Starting bonus options</source>
        <translation>Начальные бонусы</translation>
    </message>
    <message>
        <source>Hero crossover options</source>
        <translation>Переход героя</translation>
    </message>
    <message>
        <source>Starting hero options</source>
        <translation>Начальные герои</translation>
    </message>
</context>
<context>
    <name>StartingBonus</name>
    <message>
        <source>Player position:</source>
        <translation>Позиция игрока:</translation>
    </message>
    <message>
        <source>Starting bonus option</source>
        <translation>Вариант начального бонуса</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Chosen starting bonuses</source>
        <translation>Выбранные начальные бонусы</translation>
    </message>
</context>
<context>
    <name>StartingHeroDialog</name>
    <message>
        <source>Edit Starting Hero Option</source>
        <translation>Вариант начального героя</translation>
    </message>
    <message>
        <source>Player position:</source>
        <translation>Позиция игрока:</translation>
    </message>
    <message>
        <source>Hero Identity:</source>
        <translation>Герой:</translation>
    </message>
</context>
<context>
    <name>StartingHeroOptions</name>
    <message>
        <source>Hero</source>
        <translation>Герой</translation>
    </message>
    <message>
        <source>Player position</source>
        <translation>Позиция игрока</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Chosen starting heroes</source>
        <translation>Выбранные начальные герои</translation>
    </message>
</context>
<context>
    <name>bonus_creature_dlg</name>
    <message>
        <source>Hero:</source>
        <translation>Герой:</translation>
    </message>
    <message>
        <source>Creature type:</source>
        <translation>Тип существа:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Количество:</translation>
    </message>
</context>
<context>
    <name>bonus_dialog</name>
    <message>
        <source>Edit Starting Bonus</source>
        <translation>Изменение начального бонуса</translation>
    </message>
    <message>
        <source>Select a bonus type:</source>
        <translation>Выберите тип бонуса:</translation>
    </message>
    <message>
        <source>Spell</source>
        <translation>Заклинание</translation>
    </message>
    <message>
        <source>Creature</source>
        <translation>Существо</translation>
    </message>
    <message>
        <source>Buildiing</source>
        <translation>Постройка</translation>
    </message>
    <message>
        <source>Artifact</source>
        <translation>Артефакт</translation>
    </message>
    <message>
        <source>Spell scroll</source>
        <translation>Свиток с заклинанием</translation>
    </message>
    <message>
        <source>Primary skill</source>
        <translation>Первичный навык</translation>
    </message>
    <message>
        <source>Secondary skill</source>
        <translation>Вторичный навык</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>Ресурс</translation>
    </message>
</context>
<context>
    <name>bonus_multibox_dlg</name>
    <message>
        <source>Recipient:</source>
        <translation>Получатель:</translation>
    </message>
    <message>
        <source>Item 1:</source>
        <translation>Предмет 1:</translation>
    </message>
    <message>
        <source>Item 2:</source>
        <translation>Предмет 2:</translation>
    </message>
    <message>
        <source>Spell:</source>
        <translation>Заклинание:</translation>
    </message>
    <message>
        <source>Artifact:</source>
        <translation>Артефакт:</translation>
    </message>
    <message>
        <source>Skill:</source>
        <translation>Навык:</translation>
    </message>
    <message>
        <source>Skill level:</source>
        <translation>Уровень навыка:</translation>
    </message>
    <message>
        <source>Building:</source>
        <translation>Постройка:</translation>
    </message>
</context>
<context>
    <name>bonus_value_dlg</name>
    <message>
        <source>Datatype:</source>
        <translation>Тип данных:</translation>
    </message>
    <message>
        <source>Value1:</source>
        <translation>Значение 1:</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Получатель:</translation>
    </message>
    <message>
        <source>Attack skill:</source>
        <translation>Атака:</translation>
    </message>
    <message>
        <source>Defense skill:</source>
        <translation>Защита:</translation>
    </message>
    <message>
        <source>Spell power:</source>
        <translation>Сила магии:</translation>
    </message>
    <message>
        <source>Knowledge:</source>
        <translation>Знание:</translation>
    </message>
    <message>
        <source>Resource type:</source>
        <translation>Тип ресурса:</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Количество</translation>
    </message>
</context>
<context>
    <name>newcampaign</name>
    <message>
        <source>New Campaign</source>
        <translation>Новая кампания</translation>
    </message>
    <message>
        <source>Campaign type</source>
        <translation>Тип кампании</translation>
    </message>
    <message>
        <source>Campaign with map</source>
        <translation>Кампания с картой</translation>
    </message>
    <message>
        <source>Campaign without map</source>
        <translation>Кампания без карты</translation>
    </message>
    <message>
        <source>Campaign map</source>
        <translation>Карта кампании</translation>
    </message>
    <message>
        <source>image</source>
        <translation>изображение</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предварительный просмотр</translation>
    </message>
</context>
<context>
    <name>scenarioGeneral</name>
    <message>
        <source>Region name</source>
        <translation>Название региона</translation>
    </message>
    <message>
        <source>Scenario name</source>
        <translation>Название сценария</translation>
    </message>
    <message>
        <source>(None)</source>
        <translation>(нет)</translation>
    </message>
    <message>
        <source>Region color</source>
        <translation>Цвет региона</translation>
    </message>
    <message>
        <source>Map file</source>
        <translation>Файл карты</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Импорт...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Экспорт...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Default difficulty:</source>
        <translation>Сложность по умолчанию:</translation>
    </message>
    <message>
        <source>Prerequisites:</source>
        <translation>Сначала нужно пройти:</translation>
    </message>
    <message>
        <source>Region right-click text:</source>
        <translation>Текст по правой кнопке мыши:</translation>
    </message>
</context>
</TS>
