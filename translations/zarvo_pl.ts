<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>FormatDate</name>
    <message>
        <source>Jan</source>
        <translation>sty</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>lut</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>kwi</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>cze</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lip</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>sie</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>wrz</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>paź</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>lis</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>gru</translation>
    </message>
    <message>
        <source>%1. %2, %3</source>
        <translation>%2 %1 %3</translation>
    </message>
</context>
<context>
    <name>GameTable</name>
    <message>
        <source>No dice selected.</source>
        <translation>Nie zaznaczono żadnej kości.</translation>
    </message>
    <message>
        <source>Are you satisfied with the roll?</source>
        <translation>Czy ten rzut ci odpowiada?</translation>
    </message>
    <message>
        <source>Zarvo - Confirm</source>
        <translation>Zarvo - Potwierdzenie</translation>
    </message>
    <message>
        <source>Do you want to enable keyboard use?</source>
        <translation>Czy chcesz włączyć sterowanie klawiaturą?</translation>
    </message>
    <message>
        <source>Zarvo - Enable Keyboard</source>
        <translation>Zarvo - Sterowanie klawiaturą</translation>
    </message>
    <message>
        <source>%1&apos;s Scoreboard</source>
        <translation>Karta wyników: %1</translation>
    </message>
    <message>
        <source>%1&apos;s turn. Please roll.</source>
        <translation>%1, twoja kolej. Rzucaj!</translation>
    </message>
    <message>
        <source>Scoring category</source>
        <translation>Kategoria do wpisania</translation>
    </message>
    <message>
        <source>Take a zero?</source>
        <translation>Wpisać zero?</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zarvo Help</source>
        <translation>Pomoc Zarvo</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Spis treści</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Indeks</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Wyszukiwanie</translation>
    </message>
    <message>
        <source>There is no help to show: the help file &quot;%1&quot; could not be read.</source>
        <translation>Brak pomocy do wyświetlenia: nie udało się odczytać pliku pomocy „%1”.</translation>
    </message>
    <message>
        <source>&amp;Type the first letters of a keyword:</source>
        <translation>Wpisz początek &amp;hasła:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Hasło</translation>
    </message>
</context>
<context>
    <name>HighScoreCheck</name>
    <message>
        <source>High scores will not be saved.</source>
        <translation>Najlepsze wyniki nie zostaną zapisane.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Błąd pliku danych</translation>
    </message>
    <message>
        <source>There was an error opening the data file.</source>
        <translation>Wystąpił błąd podczas otwierania pliku danych.</translation>
    </message>
    <message>
        <source>There was an error writing the data file.</source>
        <translation>Wystąpił błąd podczas zapisu pliku danych.</translation>
    </message>
</context>
<context>
    <name>PlayerSelection</name>
    <message>
        <source>There is an error in the data file.</source>
        <translation>Plik danych zawiera błąd.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Open Data File</source>
        <translation>Zarvo - Nie można otworzyć pliku danych</translation>
    </message>
    <message>
        <source>Please enter a name to add.</source>
        <translation>Wpisz imię gracza, którego chcesz dodać.</translation>
    </message>
    <message>
        <source>Zarvo - Please Enter a Name</source>
        <translation>Zarvo - Wpisz imię</translation>
    </message>
    <message>
        <source>Cannot add player; the player already exists.</source>
        <translation>Nie można dodać gracza; taki gracz już istnieje.</translation>
    </message>
    <message>
        <source>Zarvo - Already Have Player</source>
        <translation>Zarvo - Gracz już istnieje</translation>
    </message>
    <message>
        <source>The information will not be saved.</source>
        <translation>Dane nie zostaną zapisane.</translation>
    </message>
    <message>
        <source>Player not found - cannot remove player.</source>
        <translation>Nie znaleziono gracza – nie można go usunąć.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Remove</source>
        <translation>Zarvo - Nie można usunąć</translation>
    </message>
    <message>
        <source>Cannot remove a player<byte value="xd"/>
that is currently selected.</source>
        <translation>Nie można usunąć gracza,<byte value="xd"/>
który jest teraz wybrany.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
this player? All saved information<byte value="xd"/>
for the player will be lost.</source>
        <translation>Czy na pewno chcesz usunąć<byte value="xd"/>
tego gracza? Wszystkie zapisane<byte value="xd"/>
dane gracza zostaną utracone.</translation>
    </message>
    <message>
        <source>Zarvo - Confirm Delete</source>
        <translation>Zarvo - Potwierdzenie usunięcia</translation>
    </message>
    <message>
        <source>The removal will not be saved.</source>
        <translation>Usunięcie nie zostanie zapisane.</translation>
    </message>
</context>
<context>
    <name>PlayerStatistics</name>
    <message>
        <source>Congratulations, an all-time high!</source>
        <translation>Gratulacje, rekord wszech czasów!</translation>
    </message>
    <message>
        <source>An all-time low! Better luck next time!</source>
        <translation>Najsłabszy wynik w historii! Głowa do góry!</translation>
    </message>
    <message>
        <source>Congratulations, a new session high!</source>
        <translation>Gratulacje, najlepszy wynik sesji!</translation>
    </message>
    <message>
        <source>A new session low! Better luck next time!</source>
        <translation>Najsłabszy wynik sesji! Głowa do góry!</translation>
    </message>
    <message>
        <source>You bettered your overall average...</source>
        <translation>Twoja średnia ogólna wzrosła...</translation>
    </message>
    <message>
        <source>Brought your overall average down...</source>
        <translation>Twoja średnia ogólna spadła...</translation>
    </message>
    <message>
        <source>Your overall average didn&apos;t change...</source>
        <translation>Twoja średnia ogólna bez zmian...</translation>
    </message>
    <message>
        <source>You bettered your session average...</source>
        <translation>Twoja średnia sesji wzrosła...</translation>
    </message>
    <message>
        <source>Brought your session average down...</source>
        <translation>Twoja średnia sesji spadła...</translation>
    </message>
    <message>
        <source>Your session average didn&apos;t change...</source>
        <translation>Twoja średnia sesji bez zmian...</translation>
    </message>
    <message>
        <source>%1&apos;s Results:</source>
        <translation>Wyniki: %1</translation>
    </message>
    <message>
        <source>%1 Scored: %2</source>
        <translation>%1 – wynik: %2</translation>
    </message>
</context>
<context>
    <name>SpokenTable</name>
    <message>
        <source>Rolling</source>
        <translation>Kości się toczą</translation>
    </message>
    <message>
        <source>one</source>
        <translation>jeden</translation>
    </message>
    <message>
        <source>two</source>
        <translation>dwa</translation>
    </message>
    <message>
        <source>three</source>
        <translation>trzy</translation>
    </message>
    <message>
        <source>four</source>
        <translation>cztery</translation>
    </message>
    <message>
        <source>five</source>
        <translation>pięć</translation>
    </message>
    <message>
        <source>six</source>
        <translation>sześć</translation>
    </message>
    <message>
        <source>Die %1: on the pile</source>
        <translation>Kość %1: na stosie</translation>
    </message>
    <message>
        <source>Keep die %1: %2</source>
        <translation>Zostaw kość %1: %2</translation>
    </message>
    <message>
        <source>Die %1: %2</source>
        <translation>Kość %1: %2</translation>
    </message>
    <message>
        <source>open</source>
        <translation>wolne pole</translation>
    </message>
    <message>
        <source>open, would score nothing</source>
        <translation>wolne pole, nic by nie dało</translation>
    </message>
    <message>
        <source>open, would score %1 and a bonus of %2</source>
        <translation>wolne pole, dałoby %1 i premię %2</translation>
    </message>
    <message>
        <source>open, would score %1</source>
        <translation>wolne pole, dałoby %1</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Kości</translation>
    </message>
    <message>
        <source>No rolls left.</source>
        <translation>Koniec rzutów.</translation>
    </message>
    <message>
        <source>One roll left.</source>
        <translation>Został jeden rzut.</translation>
    </message>
    <message>
        <source>Two rolls left.</source>
        <translation>Zostały dwa rzuty.</translation>
    </message>
    <message>
        <source>Rolled %1.</source>
        <translation>Wyrzucono: %1.</translation>
    </message>
    <message>
        <source>%1: %2 and a bonus of %3 written.</source>
        <translation>%1: wpisano %2 i premię %3.</translation>
    </message>
    <message>
        <source>%1: %2 written.</source>
        <translation>%1: wpisano %2.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Five dice and a score card for one to eight players.</source>
        <translation>Pięć kości i karta wyników dla jednego do ośmiu graczy.</translation>
    </message>
    <message>
        <source>Made by the Zarvo developers.</source>
        <translation>Stworzone przez twórców Zarvo.</translation>
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
        <translation>Zarvo - Najlepszy wynik</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Gratulacje!</translation>
    </message>
    <message>
        <source>You got a High Score!</source>
        <translation>Jesteś na liście najlepszych!</translation>
    </message>
    <message>
        <source>(Please enter your name as you want it to appear.)</source>
        <translation>(Wpisz imię tak, jak ma być wyświetlane.)</translation>
    </message>
    <message>
        <source>Player Name:</source>
        <translation>Imię gracza:</translation>
    </message>
    <message>
        <source>Enter your name.</source>
        <translation>Wpisz swoje imię.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Imię gracza</translation>
    </message>
</context>
<context>
    <name>frmHighScores</name>
    <message>
        <source>Zarvo - High Scores</source>
        <translation>Zarvo - Najlepsze wyniki</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Gracz:</translation>
    </message>
    <message>
        <source>Score:</source>
        <translation>Wynik:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
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
        <translation>Rzuć lub przyjmij rzut.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Zost.</translation>
    </message>
    <message>
        <source>Roll</source>
        <comment>the word over a die</comment>
        <translation>Rzuć</translation>
    </message>
    <message>
        <source>Column of die %1</source>
        <translation>Kolumna kości %1</translation>
    </message>
    <message>
        <source>Please select a scoring category.</source>
        <translation>Wybierz kategorię do wpisania wyniku.</translation>
    </message>
    <message>
        <source>Ones....</source>
        <translation>Jedynki..</translation>
    </message>
    <message>
        <source>Score total of ones showing.</source>
        <translation>Suma wyrzuconych jedynek.</translation>
    </message>
    <message>
        <source>Twos....</source>
        <translation>Dwójki..</translation>
    </message>
    <message>
        <source>Score total of twos showing.</source>
        <translation>Suma wyrzuconych dwójek.</translation>
    </message>
    <message>
        <source>Threes..</source>
        <translation>Trójki....</translation>
    </message>
    <message>
        <source>Score total of threes showing.</source>
        <translation>Suma wyrzuconych trójek.</translation>
    </message>
    <message>
        <source>Fours....</source>
        <translation>Czwórki</translation>
    </message>
    <message>
        <source>Score total of fours showing.</source>
        <translation>Suma wyrzuconych czwórek.</translation>
    </message>
    <message>
        <source>Fives....</source>
        <translation>Piątki....</translation>
    </message>
    <message>
        <source>Score total of fives showing.</source>
        <translation>Suma wyrzuconych piątek.</translation>
    </message>
    <message>
        <source>Sixes....</source>
        <translation>Szóstki..</translation>
    </message>
    <message>
        <source>Score total of sixes showing.</source>
        <translation>Suma wyrzuconych szóstek.</translation>
    </message>
    <message>
        <source>Three of a Kind..</source>
        <translation>Trzy jednakowe..</translation>
    </message>
    <message>
        <source>Three of one die type. (Score total of die showing.)</source>
        <translation>Trzy jednakowe kości. (Suma oczek wszystkich kości.)</translation>
    </message>
    <message>
        <source>Four of a Kind....</source>
        <translation>Cztery jednakowe</translation>
    </message>
    <message>
        <source>Four of one die type. (Score total of die showing.)</source>
        <translation>Cztery jednakowe kości. (Suma oczek wszystkich kości.)</translation>
    </message>
    <message>
        <source>Full House.........</source>
        <translation>Full....................</translation>
    </message>
    <message>
        <source>Two of a kind + three of a kind. (Score 25.)</source>
        <translation>Para + trzy jednakowe. (25 punktów.)</translation>
    </message>
    <message>
        <source>Small Straight....</source>
        <translation>Mały strit............</translation>
    </message>
    <message>
        <source>1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)</source>
        <translation>1-2-3-4, 2-3-4-5 lub 3-4-5-6. (30 punktów.)</translation>
    </message>
    <message>
        <source>Large Straight...</source>
        <translation>Duży strit...........</translation>
    </message>
    <message>
        <source>1-2-3-4-5 or 2-3-4-5-6. (Score 35.)</source>
        <translation>1-2-3-4-5 lub 2-3-4-5-6. (35 punktów.)</translation>
    </message>
    <message>
        <source>Zarvo................</source>
        <translation>Zarvo................</translation>
    </message>
    <message>
        <source>Five of one die type. (Score 50.)</source>
        <translation>Pięć jednakowych kości. (50 punktów.)</translation>
    </message>
    <message>
        <source>Chance.............</source>
        <translation>Szansa..............</translation>
    </message>
    <message>
        <source>Score total of die showing.</source>
        <translation>Suma oczek wszystkich kości.</translation>
    </message>
    <message>
        <source>Left......</source>
        <translation>Lewa....</translation>
    </message>
    <message>
        <source>Right....</source>
        <translation>Prawa..</translation>
    </message>
    <message>
        <source>Bonus..</source>
        <translation>Premia..</translation>
    </message>
    <message>
        <source>Total....</source>
        <translation>Suma...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Nowa gra</translation>
    </message>
    <message>
        <source>Change &amp;Players...</source>
        <translation>&amp;Zmień graczy...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opcje</translation>
    </message>
    <message>
        <source>&amp;Remember Players</source>
        <translation>&amp;Zapamiętaj graczy</translation>
    </message>
    <message>
        <source>Use &amp;Keyboard</source>
        <translation>Sterowanie &amp;klawiaturą</translation>
    </message>
    <message>
        <source>Show &amp;Scoring Preview</source>
        <translation>Pokazuj &amp;podgląd punktów</translation>
    </message>
    <message>
        <source>&amp;Animate Rolling</source>
        <translation>&amp;Animacja rzutu</translation>
    </message>
    <message>
        <source>Scoring Su&amp;mmary...</source>
        <translation>Pod&amp;sumowanie punktów...</translation>
    </message>
    <message>
        <source>&amp;High Scores...</source>
        <translation>&amp;Najlepsze wyniki...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Spis treści...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;O programie Zarvo...</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Przyjmij</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rzuć</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source> Zarvo - New Game</source>
        <translation> Zarvo - Nowa gra</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Play another game?</source>
        <translation>Zagrasz jeszcze raz?</translation>
    </message>
</context>
<context>
    <name>frmPlayerResults</name>
    <message>
        <source>Zarvo - Results</source>
        <translation>Zarvo - Wyniki</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Najlepszy</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Najsłabszy</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Średnia</translation>
    </message>
    <message>
        <source>Session:</source>
        <translation>Sesja:</translation>
    </message>
    <message>
        <source>All-time:</source>
        <translation>Ogółem:</translation>
    </message>
</context>
<context>
    <name>frmPlayers</name>
    <message>
        <source>&lt; None &gt;</source>
        <translation>&lt; Brak &gt;</translation>
    </message>
    <message>
        <source>&lt; Player %1 &gt;</source>
        <translation>&lt; Gracz %1 &gt;</translation>
    </message>
    <message>
        <source> Zarvo - Change Players</source>
        <translation> Zarvo - Zmiana graczy</translation>
    </message>
    <message>
        <source>Note: to be able to add or remove players, the file &apos;Zarvo.dat&apos; must exist in the same directory at the program file &apos;Zarvo.exe&apos;. </source>
        <translation>Uwaga: aby dodawać i usuwać graczy, plik „Zarvo.dat” musi leżeć w tym samym folderze co program. </translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Play with the previously selected players.</source>
        <translation>Graj z poprzednio wybranymi graczami.</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Graj</translation>
    </message>
    <message>
        <source>Play with the currently selected players.</source>
        <translation>Graj z obecnie wybranymi graczami.</translation>
    </message>
    <message>
        <source>Selected Players:</source>
        <translation>Wybrani gracze:</translation>
    </message>
    <message>
        <source>Player %1:</source>
        <translation>Gracz %1:</translation>
    </message>
    <message>
        <source>Select player #%1.</source>
        <translation>Wybierz gracza nr %1.</translation>
    </message>
    <message>
        <source>Player %1</source>
        <translation>Gracz %1</translation>
    </message>
    <message>
        <source>Add/Remove Players</source>
        <translation>Dodawanie i usuwanie graczy</translation>
    </message>
    <message>
        <source>Select player to remove, or enter name to add.</source>
        <translation>Wybierz gracza do usunięcia lub wpisz imię nowego.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Imię gracza</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Add the player to the list.</source>
        <translation>Dodaj gracza do listy.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Remove the selected player from the list.</source>
        <translation>Usuń wybranego gracza z listy.</translation>
    </message>
</context>
<context>
    <name>frmSummary</name>
    <message>
        <source>Zarvo - Scoring Summary</source>
        <translation>Zarvo - Podsumowanie punktów</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Gracz:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Lew.:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Prawa:</translation>
    </message>
    <message>
        <source>Bonus:</source>
        <translation>Premia:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Suma:</translation>
    </message>
    <message>
        <source>Zarvos:</source>
        <translation>Zarvo:</translation>
    </message>
    <message>
        <source>Totals:</source>
        <translation>Razem:</translation>
    </message>
</context>
<context>
    <name>modCommon</name>
    <message>
        <source>Player %1</source>
        <translation>Gracz %1</translation>
    </message>
</context>
<context>
    <name>modDatabase</name>
    <message>
        <source>There was an error opening the<byte value="xd"/>
data file. Please make sure the file<byte value="xd"/>
&apos;Zarvo.dat&apos; exists in this directory.</source>
        <translation>Wystąpił błąd podczas otwierania<byte value="xd"/>
pliku danych. Sprawdź, czy plik<byte value="xd"/>
„Zarvo.dat” jest w tym folderze.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Błąd pliku danych</translation>
    </message>
</context>
</TS>
