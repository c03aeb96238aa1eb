<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>FormatDate</name>
    <message>
        <source>Jan</source>
        <translation>янв.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>февр.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>мар.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>апр.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>мая</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>июн.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>июл.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>авг.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>сент.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>окт.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>нояб.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>дек.</translation>
    </message>
    <message>
        <source>%1. %2, %3</source>
        <translation>%2 %1 %3&#xa0;г.</translation>
    </message>
</context>
<context>
    <name>GameTable</name>
    <message>
        <source>No dice selected.</source>
        <translation>Не выбрано ни одного кубика.</translation>
    </message>
    <message>
        <source>Are you satisfied with the roll?</source>
        <translation>Тебя устраивает этот бросок?</translation>
    </message>
    <message>
        <source>Zarvo - Confirm</source>
        <translation>Zarvo - Подтверждение</translation>
    </message>
    <message>
        <source>Do you want to enable keyboard use?</source>
        <translation>Включить управление с клавиатуры?</translation>
    </message>
    <message>
        <source>Zarvo - Enable Keyboard</source>
        <translation>Zarvo - Управление с клавиатуры</translation>
    </message>
    <message>
        <source>%1&apos;s Scoreboard</source>
        <translation>Таблица очков: %1</translation>
    </message>
    <message>
        <source>%1&apos;s turn. Please roll.</source>
        <translation>%1, твой ход. Бросай!</translation>
    </message>
    <message>
        <source>Scoring category</source>
        <translation>Категория для записи</translation>
    </message>
    <message>
        <source>Take a zero?</source>
        <translation>Записать ноль?</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zarvo Help</source>
        <translation>Справка Zarvo</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Содержание</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Указатель</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Поиск</translation>
    </message>
    <message>
        <source>There is no help to show: the help file &quot;%1&quot; could not be read.</source>
        <translation>Справку показать нельзя: не удалось прочитать файл справки «%1».</translation>
    </message>
    <message>
        <source>&amp;Type the first letters of a keyword:</source>
        <translation>&amp;Введи начало ключевого слова:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
</context>
<context>
    <name>HighScoreCheck</name>
    <message>
        <source>High scores will not be saved.</source>
        <translation>Рекорды не будут сохранены.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Ошибка файла данных</translation>
    </message>
    <message>
        <source>There was an error opening the data file.</source>
        <translation>Не удалось открыть файл данных.</translation>
    </message>
    <message>
        <source>There was an error writing the data file.</source>
        <translation>Не удалось записать файл данных.</translation>
    </message>
</context>
<context>
    <name>PlayerSelection</name>
    <message>
        <source>There is an error in the data file.</source>
        <translation>В файле данных ошибка.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Open Data File</source>
        <translation>Zarvo - Файл данных не открывается</translation>
    </message>
    <message>
        <source>Please enter a name to add.</source>
        <translation>Введи имя игрока, которого нужно добавить.</translation>
    </message>
    <message>
        <source>Zarvo - Please Enter a Name</source>
        <translation>Zarvo - Введи имя</translation>
    </message>
    <message>
        <source>Cannot add player; the player already exists.</source>
        <translation>Нельзя добавить игрока: такой игрок уже есть.</translation>
    </message>
    <message>
        <source>Zarvo - Already Have Player</source>
        <translation>Zarvo - Такой игрок уже есть</translation>
    </message>
    <message>
        <source>The information will not be saved.</source>
        <translation>Данные не будут сохранены.</translation>
    </message>
    <message>
        <source>Player not found - cannot remove player.</source>
        <translation>Игрок не найден&#xa0;— удалить его нельзя.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Remove</source>
        <translation>Zarvo - Удалить нельзя</translation>
    </message>
    <message>
        <source>Cannot remove a player<byte value="xd"/>
that is currently selected.</source>
        <translation>Нельзя удалить игрока,<byte value="xd"/>
который сейчас выбран.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
this player? All saved information<byte value="xd"/>
for the player will be lost.</source>
        <translation>Точно удалить этого игрока?<byte value="xd"/>
Все сохранённые данные<byte value="xd"/>
о нём будут потеряны.</translation>
    </message>
    <message>
        <source>Zarvo - Confirm Delete</source>
        <translation>Zarvo - Подтверждение удаления</translation>
    </message>
    <message>
        <source>The removal will not be saved.</source>
        <translation>Удаление не будет сохранено.</translation>
    </message>
</context>
<context>
    <name>PlayerStatistics</name>
    <message>
        <source>Congratulations, an all-time high!</source>
        <translation>Поздравляем, абсолютный рекорд!</translation>
    </message>
    <message>
        <source>An all-time low! Better luck next time!</source>
        <translation>Абсолютный антирекорд! В другой раз повезёт!</translation>
    </message>
    <message>
        <source>Congratulations, a new session high!</source>
        <translation>Поздравляем, рекорд сеанса!</translation>
    </message>
    <message>
        <source>A new session low! Better luck next time!</source>
        <translation>Антирекорд сеанса! В другой раз повезёт!</translation>
    </message>
    <message>
        <source>You bettered your overall average...</source>
        <translation>Общий средний счёт вырос...</translation>
    </message>
    <message>
        <source>Brought your overall average down...</source>
        <translation>Общий средний счёт снизился...</translation>
    </message>
    <message>
        <source>Your overall average didn&apos;t change...</source>
        <translation>Общий средний счёт не изменился...</translation>
    </message>
    <message>
        <source>You bettered your session average...</source>
        <translation>Средний счёт сеанса вырос...</translation>
    </message>
    <message>
        <source>Brought your session average down...</source>
        <translation>Средний счёт сеанса снизился...</translation>
    </message>
    <message>
        <source>Your session average didn&apos;t change...</source>
        <translation>Средний счёт сеанса не изменился...</translation>
    </message>
    <message>
        <source>%1&apos;s Results:</source>
        <translation>Результаты игрока %1:</translation>
    </message>
    <message>
        <source>%1 Scored: %2</source>
        <translation>%1: итого %2</translation>
    </message>
</context>
<context>
    <name>SpokenTable</name>
    <message>
        <source>Rolling</source>
        <translation>Бросок</translation>
    </message>
    <message>
        <source>one</source>
        <translation>один</translation>
    </message>
    <message>
        <source>two</source>
        <translation>два</translation>
    </message>
    <message>
        <source>three</source>
        <translation>три</translation>
    </message>
    <message>
        <source>four</source>
        <translation>четыре</translation>
    </message>
    <message>
        <source>five</source>
        <translation>пять</translation>
    </message>
    <message>
        <source>six</source>
        <translation>шесть</translation>
    </message>
    <message>
        <source>Die %1: on the pile</source>
        <translation>Кубик %1: в куче</translation>
    </message>
    <message>
        <source>Keep die %1: %2</source>
        <translation>Оставить кубик %1: %2</translation>
    </message>
    <message>
        <source>Die %1: %2</source>
        <translation>Кубик %1: %2</translation>
    </message>
    <message>
        <source>open</source>
        <translation>свободна</translation>
    </message>
    <message>
        <source>open, would score nothing</source>
        <translation>свободна, ничего не даст</translation>
    </message>
    <message>
        <source>open, would score %1 and a bonus of %2</source>
        <translation>свободна, даст %1 и бонус %2</translation>
    </message>
    <message>
        <source>open, would score %1</source>
        <translation>свободна, даст %1</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Кубики</translation>
    </message>
    <message>
        <source>No rolls left.</source>
        <translation>Бросков не осталось.</translation>
    </message>
    <message>
        <source>One roll left.</source>
        <translation>Остался один бросок.</translation>
    </message>
    <message>
        <source>Two rolls left.</source>
        <translation>Осталось два броска.</translation>
    </message>
    <message>
        <source>Rolled %1.</source>
        <translation>Выпало: %1.</translation>
    </message>
    <message>
        <source>%1: %2 and a bonus of %3 written.</source>
        <translation>%1: записано %2 и бонус %3.</translation>
    </message>
    <message>
        <source>%1: %2 written.</source>
        <translation>%1: записано %2.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Five dice and a score card for one to eight players.</source>
        <translation>Пять кубиков и таблица очков для одного–восьми игроков.</translation>
    </message>
    <message>
        <source>Made by the Zarvo developers.</source>
        <translation>Создано разработчиками Zarvo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>frmHighScoreNotify</name>
    <message>
        <source>Zarvo - High Score</source>
        <translation>Zarvo - Рекорд</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Поздравляем!</translation>
    </message>
    <message>
        <source>You got a High Score!</source>
        <translation>Ты в таблице рекордов!</translation>
    </message>
    <message>
        <source>(Please enter your name as you want it to appear.)</source>
        <translation>(Введи имя так, как оно будет в таблице.)</translation>
    </message>
    <message>
        <source>Player Name:</source>
        <translation>Имя игрока:</translation>
    </message>
    <message>
        <source>Enter your name.</source>
        <translation>Введи своё имя.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Имя игрока</translation>
    </message>
</context>
<context>
    <name>frmHighScores</name>
    <message>
        <source>Zarvo - High Scores</source>
        <translation>Zarvo - Таблица рекордов</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Игрок:</translation>
    </message>
    <message>
        <source>Score:</source>
        <translation>Очки:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Дата:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Roll or accept roll.</source>
        <translation>Бросить кубики или принять бросок.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Roll</source>
        <comment>the word over a die</comment>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>Column of die %1</source>
        <translation>Столбец кубика %1</translation>
    </message>
    <message>
        <source>Please select a scoring category.</source>
        <translation>Выбери категорию для записи.</translation>
    </message>
    <message>
        <source>Ones....</source>
        <translation>Один.....</translation>
    </message>
    <message>
        <source>Score total of ones showing.</source>
        <translation>Сумма выпавших единиц.</translation>
    </message>
    <message>
        <source>Twos....</source>
        <translation>Два.......</translation>
    </message>
    <message>
        <source>Score total of twos showing.</source>
        <translation>Сумма выпавших двоек.</translation>
    </message>
    <message>
        <source>Threes..</source>
        <translation>Три.......</translation>
    </message>
    <message>
        <source>Score total of threes showing.</source>
        <translation>Сумма выпавших троек.</translation>
    </message>
    <message>
        <source>Fours....</source>
        <translation>Четыре..</translation>
    </message>
    <message>
        <source>Score total of fours showing.</source>
        <translation>Сумма выпавших четвёрок.</translation>
    </message>
    <message>
        <source>Fives....</source>
        <translation>Пять.....</translation>
    </message>
    <message>
        <source>Score total of fives showing.</source>
        <translation>Сумма выпавших пятёрок.</translation>
    </message>
    <message>
        <source>Sixes....</source>
        <translation>Шесть...</translation>
    </message>
    <message>
        <source>Score total of sixes showing.</source>
        <translation>Сумма выпавших шестёрок.</translation>
    </message>
    <message>
        <source>Three of a Kind..</source>
        <translation>Сет.....................</translation>
    </message>
    <message>
        <source>Three of one die type. (Score total of die showing.)</source>
        <translation>Три одинаковых кубика. (Сумма всех кубиков.)</translation>
    </message>
    <message>
        <source>Four of a Kind....</source>
        <translation>Каре..................</translation>
    </message>
    <message>
        <source>Four of one die type. (Score total of die showing.)</source>
        <translation>Четыре одинаковых кубика. (Сумма всех кубиков.)</translation>
    </message>
    <message>
        <source>Full House.........</source>
        <translation>Фулл-хаус..........</translation>
    </message>
    <message>
        <source>Two of a kind + three of a kind. (Score 25.)</source>
        <translation>Два одинаковых + три одинаковых. (25 очков.)</translation>
    </message>
    <message>
        <source>Small Straight....</source>
        <translation>Малый стрит.....</translation>
    </message>
    <message>
        <source>1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)</source>
        <translation>1-2-3-4, 2-3-4-5 или 3-4-5-6. (30 очков.)</translation>
    </message>
    <message>
        <source>Large Straight...</source>
        <translation>Большой стрит..</translation>
    </message>
    <message>
        <source>1-2-3-4-5 or 2-3-4-5-6. (Score 35.)</source>
        <translation>1-2-3-4-5 или 2-3-4-5-6. (35 очков.)</translation>
    </message>
    <message>
        <source>Zarvo................</source>
        <translation>Zarvo................</translation>
    </message>
    <message>
        <source>Five of one die type. (Score 50.)</source>
        <translation>Пять одинаковых кубиков. (50 очков.)</translation>
    </message>
    <message>
        <source>Chance.............</source>
        <translation>Шанс..................</translation>
    </message>
    <message>
        <source>Score total of die showing.</source>
        <translation>Сумма всех кубиков.</translation>
    </message>
    <message>
        <source>Left......</source>
        <translation>Левая...</translation>
    </message>
    <message>
        <source>Right....</source>
        <translation>Правая..</translation>
    </message>
    <message>
        <source>Bonus..</source>
        <translation>Бонус...</translation>
    </message>
    <message>
        <source>Total....</source>
        <translation>Итого....</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Новая игра</translation>
    </message>
    <message>
        <source>Change &amp;Players...</source>
        <translation>Сменить &amp;игроков...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Параметры</translation>
    </message>
    <message>
        <source>&amp;Remember Players</source>
        <translation>&amp;Запоминать игроков</translation>
    </message>
    <message>
        <source>Use &amp;Keyboard</source>
        <translation>Управление с &amp;клавиатуры</translation>
    </message>
    <message>
        <source>Show &amp;Scoring Preview</source>
        <translation>&amp;Подсказка очков</translation>
    </message>
    <message>
        <source>&amp;Animate Rolling</source>
        <translation>&amp;Анимация броска</translation>
    </message>
    <message>
        <source>Scoring Su&amp;mmary...</source>
        <translation>&amp;Сводка очков...</translation>
    </message>
    <message>
        <source>&amp;High Scores...</source>
        <translation>&amp;Таблица рекордов...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Содержание...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;О программе Zarvo...</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Принять</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Бросить</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source> Zarvo - New Game</source>
        <translation> Zarvo - Новая игра</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Play another game?</source>
        <translation>Сыграть ещё раз?</translation>
    </message>
</context>
<context>
    <name>frmPlayerResults</name>
    <message>
        <source>Zarvo - Results</source>
        <translation>Zarvo - Результаты</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Лучший</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Худший</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Средний</translation>
    </message>
    <message>
        <source>Session:</source>
        <translation>Сеанс:</translation>
    </message>
    <message>
        <source>All-time:</source>
        <translation>Всего:</translation>
    </message>
</context>
<context>
    <name>frmPlayers</name>
    <message>
        <source>&lt; None &gt;</source>
        <translation>&lt; Нет &gt;</translation>
    </message>
    <message>
        <source>&lt; Player %1 &gt;</source>
        <translation>&lt; Игрок %1 &gt;</translation>
    </message>
    <message>
        <source> Zarvo - Change Players</source>
        <translation> Zarvo - Смена игроков</translation>
    </message>
    <message>
        <source>Note: to be able to add or remove players, the file &apos;Zarvo.dat&apos; must exist in the same directory at the program file &apos;Zarvo.exe&apos;. </source>
        <translation>Примечание: чтобы добавлять и удалять игроков, файл «Zarvo.dat» должен лежать в одной папке с программой. </translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <source>Play with the previously selected players.</source>
        <translation>Продолжить с прежними игроками.</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Играть</translation>
    </message>
    <message>
        <source>Play with the currently selected players.</source>
        <translation>Играть с выбранными сейчас игроками.</translation>
    </message>
    <message>
        <source>Selected Players:</source>
        <translation>Выбранные игроки:</translation>
    </message>
    <message>
        <source>Player %1:</source>
        <translation>Игрок %1:</translation>
    </message>
    <message>
        <source>Select player #%1.</source>
        <translation>Выбери игрока №&#xa0;%1.</translation>
    </message>
    <message>
        <source>Player %1</source>
        <translation>Игрок %1</translation>
    </message>
    <message>
        <source>Add/Remove Players</source>
        <translation>Добавить или удалить игрока</translation>
    </message>
    <message>
        <source>Select player to remove, or enter name to add.</source>
        <translation>Выбери игрока, чтобы удалить, или введи имя, чтобы добавить.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Имя игрока</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Внести</translation>
    </message>
    <message>
        <source>Add the player to the list.</source>
        <translation>Добавить игрока в список.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Remove the selected player from the list.</source>
        <translation>Удалить выбранного игрока из списка.</translation>
    </message>
</context>
<context>
    <name>frmSummary</name>
    <message>
        <source>Zarvo - Scoring Summary</source>
        <translation>Zarvo - Сводка очков</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Игрок:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Лев.:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Прав.:</translation>
    </message>
    <message>
        <source>Bonus:</source>
        <translation>Бонус:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Итого:</translation>
    </message>
    <message>
        <source>Zarvos:</source>
        <translation>Zarvo:</translation>
    </message>
    <message>
        <source>Totals:</source>
        <translation>Всего:</translation>
    </message>
</context>
<context>
    <name>modCommon</name>
    <message>
        <source>Player %1</source>
        <translation>Игрок %1</translation>
    </message>
</context>
<context>
    <name>modDatabase</name>
    <message>
        <source>There was an error opening the<byte value="xd"/>
data file. Please make sure the file<byte value="xd"/>
&apos;Zarvo.dat&apos; exists in this directory.</source>
        <translation>Не удалось открыть файл данных.<byte value="xd"/>
Проверь, что файл «Zarvo.dat»<byte value="xd"/>
лежит в этой папке.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Ошибка файла данных</translation>
    </message>
</context>
</TS>
