<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>FormatDate</name>
    <message>
        <source>Jan</source>
        <translation>Jan.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>März</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sept.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez.</translation>
    </message>
    <message>
        <source>%1. %2, %3</source>
        <translation>%2. %1 %3</translation>
    </message>
</context>
<context>
    <name>GameTable</name>
    <message>
        <source>No dice selected.</source>
        <translation>Keine Würfel ausgewählt.</translation>
    </message>
    <message>
        <source>Are you satisfied with the roll?</source>
        <translation>Bist du mit dem Wurf zufrieden?</translation>
    </message>
    <message>
        <source>Zarvo - Confirm</source>
        <translation>Zarvo - Bestätigen</translation>
    </message>
    <message>
        <source>Do you want to enable keyboard use?</source>
        <translation>Möchtest du die Tastatursteuerung einschalten?</translation>
    </message>
    <message>
        <source>Zarvo - Enable Keyboard</source>
        <translation>Zarvo - Tastatur einschalten</translation>
    </message>
    <message>
        <source>%1&apos;s Scoreboard</source>
        <translation>Punkteblatt von %1</translation>
    </message>
    <message>
        <source>%1&apos;s turn. Please roll.</source>
        <translation>%1 ist dran. Bitte würfeln.</translation>
    </message>
    <message>
        <source>Scoring category</source>
        <translation>Feld zum Eintragen</translation>
    </message>
    <message>
        <source>Take a zero?</source>
        <translation>Eine Null eintragen?</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zarvo Help</source>
        <translation>Zarvo-Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>In&amp;dex</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suche</translation>
    </message>
    <message>
        <source>There is no help to show: the help file &quot;%1&quot; could not be read.</source>
        <translation>Es gibt keine Hilfe: Die Hilfedatei „%1“ ließ sich nicht lesen.</translation>
    </message>
    <message>
        <source>&amp;Type the first letters of a keyword:</source>
        <translation>&amp;Anfang eines Stichworts eingeben:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Stichwort</translation>
    </message>
</context>
<context>
    <name>HighScoreCheck</name>
    <message>
        <source>High scores will not be saved.</source>
        <translation>Bestleistungen werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Fehler in der Datendatei</translation>
    </message>
    <message>
        <source>There was an error opening the data file.</source>
        <translation>Beim Öffnen der Datendatei ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>There was an error writing the data file.</source>
        <translation>Beim Schreiben der Datendatei ist ein Fehler aufgetreten.</translation>
    </message>
</context>
<context>
    <name>PlayerSelection</name>
    <message>
        <source>There is an error in the data file.</source>
        <translation>Die Datendatei ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Open Data File</source>
        <translation>Zarvo - Datendatei nicht zu öffnen</translation>
    </message>
    <message>
        <source>Please enter a name to add.</source>
        <translation>Bitte gib den Namen ein, der hinzukommen soll.</translation>
    </message>
    <message>
        <source>Zarvo - Please Enter a Name</source>
        <translation>Zarvo - Bitte einen Namen eingeben</translation>
    </message>
    <message>
        <source>Cannot add player; the player already exists.</source>
        <translation>Spieler kann nicht hinzugefügt werden; es gibt ihn schon.</translation>
    </message>
    <message>
        <source>Zarvo - Already Have Player</source>
        <translation>Zarvo - Spieler schon vorhanden</translation>
    </message>
    <message>
        <source>The information will not be saved.</source>
        <translation>Die Angaben werden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Player not found - cannot remove player.</source>
        <translation>Spieler nicht gefunden - Entfernen nicht möglich.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Remove</source>
        <translation>Zarvo - Entfernen nicht möglich</translation>
    </message>
    <message>
        <source>Cannot remove a player<byte value="xd"/>
that is currently selected.</source>
        <translation>Ein Spieler, der gerade ausgewählt ist,<byte value="xd"/>
kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
this player? All saved information<byte value="xd"/>
for the player will be lost.</source>
        <translation>Möchtest du diesen Spieler wirklich<byte value="xd"/>
löschen? Alle gespeicherten Angaben<byte value="xd"/>
zu ihm gehen verloren.</translation>
    </message>
    <message>
        <source>Zarvo - Confirm Delete</source>
        <translation>Zarvo - Löschen bestätigen</translation>
    </message>
    <message>
        <source>The removal will not be saved.</source>
        <translation>Das Entfernen wird nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>PlayerStatistics</name>
    <message>
        <source>Congratulations, an all-time high!</source>
        <translation>Glückwunsch, ein neuer Allzeit-Rekord!</translation>
    </message>
    <message>
        <source>An all-time low! Better luck next time!</source>
        <translation>Allzeit-Tiefstwert! Nächstes Mal mehr Glück!</translation>
    </message>
    <message>
        <source>Congratulations, a new session high!</source>
        <translation>Glückwunsch, Bestwert der Sitzung!</translation>
    </message>
    <message>
        <source>A new session low! Better luck next time!</source>
        <translation>Sitzungs-Tiefstwert! Nächstes Mal mehr Glück!</translation>
    </message>
    <message>
        <source>You bettered your overall average...</source>
        <translation>Gesamtschnitt verbessert...</translation>
    </message>
    <message>
        <source>Brought your overall average down...</source>
        <translation>Gesamtschnitt gesunken...</translation>
    </message>
    <message>
        <source>Your overall average didn&apos;t change...</source>
        <translation>Gesamtschnitt unverändert...</translation>
    </message>
    <message>
        <source>You bettered your session average...</source>
        <translation>Schnitt der Sitzung verbessert...</translation>
    </message>
    <message>
        <source>Brought your session average down...</source>
        <translation>Schnitt der Sitzung gesunken...</translation>
    </message>
    <message>
        <source>Your session average didn&apos;t change...</source>
        <translation>Schnitt der Sitzung unverändert...</translation>
    </message>
    <message>
        <source>%1&apos;s Results:</source>
        <translation>Ergebnisse von %1:</translation>
    </message>
    <message>
        <source>%1 Scored: %2</source>
        <translation>%1 erzielt: %2</translation>
    </message>
</context>
<context>
    <name>SpokenTable</name>
    <message>
        <source>Rolling</source>
        <translation>Es wird gewürfelt</translation>
    </message>
    <message>
        <source>one</source>
        <translation>eins</translation>
    </message>
    <message>
        <source>two</source>
        <translation>zwei</translation>
    </message>
    <message>
        <source>three</source>
        <translation>drei</translation>
    </message>
    <message>
        <source>four</source>
        <translation>vier</translation>
    </message>
    <message>
        <source>five</source>
        <translation>fünf</translation>
    </message>
    <message>
        <source>six</source>
        <translation>sechs</translation>
    </message>
    <message>
        <source>Die %1: on the pile</source>
        <translation>Würfel %1: auf dem Haufen</translation>
    </message>
    <message>
        <source>Keep die %1: %2</source>
        <translation>Würfel %1 halten: %2</translation>
    </message>
    <message>
        <source>Die %1: %2</source>
        <translation>Würfel %1: %2</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>open, would score nothing</source>
        <translation>offen, brächte nichts</translation>
    </message>
    <message>
        <source>open, would score %1 and a bonus of %2</source>
        <translation>offen, brächte %1 und einen Bonus von %2</translation>
    </message>
    <message>
        <source>open, would score %1</source>
        <translation>offen, brächte %1</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>No rolls left.</source>
        <translation>Kein Wurf mehr.</translation>
    </message>
    <message>
        <source>One roll left.</source>
        <translation>Noch ein Wurf.</translation>
    </message>
    <message>
        <source>Two rolls left.</source>
        <translation>Noch zwei Würfe.</translation>
    </message>
    <message>
        <source>Rolled %1.</source>
        <translation>Gewürfelt: %1.</translation>
    </message>
    <message>
        <source>%1: %2 and a bonus of %3 written.</source>
        <translation>%1: %2 und ein Bonus von %3 eingetragen.</translation>
    </message>
    <message>
        <source>%1: %2 written.</source>
        <translation>%1: %2 eingetragen.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Five dice and a score card for one to eight players.</source>
        <translation>Fünf Würfel und ein Punkteblatt für ein bis acht Spieler.</translation>
    </message>
    <message>
        <source>Made by the Zarvo developers.</source>
        <translation>Von den Zarvo-Entwicklern.</translation>
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
        <translation>Zarvo - Bestleistung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Herzlichen Glückwunsch!</translation>
    </message>
    <message>
        <source>You got a High Score!</source>
        <translation>Ab in die Bestenliste!</translation>
    </message>
    <message>
        <source>(Please enter your name as you want it to appear.)</source>
        <translation>(Name so eingeben, wie er erscheinen soll.)</translation>
    </message>
    <message>
        <source>Player Name:</source>
        <translation>Spielername:</translation>
    </message>
    <message>
        <source>Enter your name.</source>
        <translation>Gib deinen Namen ein.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Spielername</translation>
    </message>
</context>
<context>
    <name>frmHighScores</name>
    <message>
        <source>Zarvo - High Scores</source>
        <translation>Zarvo - Bestenliste</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Spieler:</translation>
    </message>
    <message>
        <source>Score:</source>
        <translation>Punkte:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
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
        <translation>Würfeln oder den Wurf annehmen.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Roll</source>
        <comment>the word over a die</comment>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Column of die %1</source>
        <translation>Spalte von Würfel %1</translation>
    </message>
    <message>
        <source>Please select a scoring category.</source>
        <translation>Bitte wähle ein Feld zum Eintragen.</translation>
    </message>
    <message>
        <source>Ones....</source>
        <translation>Einser....</translation>
    </message>
    <message>
        <source>Score total of ones showing.</source>
        <translation>Summe der Einser.</translation>
    </message>
    <message>
        <source>Twos....</source>
        <translation>Zweier....</translation>
    </message>
    <message>
        <source>Score total of twos showing.</source>
        <translation>Summe der Zweier.</translation>
    </message>
    <message>
        <source>Threes..</source>
        <translation>Dreier....</translation>
    </message>
    <message>
        <source>Score total of threes showing.</source>
        <translation>Summe der Dreier.</translation>
    </message>
    <message>
        <source>Fours....</source>
        <translation>Vierer....</translation>
    </message>
    <message>
        <source>Score total of fours showing.</source>
        <translation>Summe der Vierer.</translation>
    </message>
    <message>
        <source>Fives....</source>
        <translation>Fünfer....</translation>
    </message>
    <message>
        <source>Score total of fives showing.</source>
        <translation>Summe der Fünfer.</translation>
    </message>
    <message>
        <source>Sixes....</source>
        <translation>Sechser..</translation>
    </message>
    <message>
        <source>Score total of sixes showing.</source>
        <translation>Summe der Sechser.</translation>
    </message>
    <message>
        <source>Three of a Kind..</source>
        <translation>Dreierpasch.....</translation>
    </message>
    <message>
        <source>Three of one die type. (Score total of die showing.)</source>
        <translation>Drei gleiche Würfel. (Summe aller Würfel.)</translation>
    </message>
    <message>
        <source>Four of a Kind....</source>
        <translation>Viererpasch.....</translation>
    </message>
    <message>
        <source>Four of one die type. (Score total of die showing.)</source>
        <translation>Vier gleiche Würfel. (Summe aller Würfel.)</translation>
    </message>
    <message>
        <source>Full House.........</source>
        <translation>Full House.........</translation>
    </message>
    <message>
        <source>Two of a kind + three of a kind. (Score 25.)</source>
        <translation>Zwei gleiche + drei gleiche. (25 Punkte.)</translation>
    </message>
    <message>
        <source>Small Straight....</source>
        <translation>Kleine Straße....</translation>
    </message>
    <message>
        <source>1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)</source>
        <translation>1-2-3-4, 2-3-4-5 oder 3-4-5-6. (30 Punkte.)</translation>
    </message>
    <message>
        <source>Large Straight...</source>
        <translation>Große Straße.....</translation>
    </message>
    <message>
        <source>1-2-3-4-5 or 2-3-4-5-6. (Score 35.)</source>
        <translation>1-2-3-4-5 oder 2-3-4-5-6. (35 Punkte.)</translation>
    </message>
    <message>
        <source>Zarvo................</source>
        <translation>Zarvo................</translation>
    </message>
    <message>
        <source>Five of one die type. (Score 50.)</source>
        <translation>Fünf gleiche Würfel. (50 Punkte.)</translation>
    </message>
    <message>
        <source>Chance.............</source>
        <translation>Chance.............</translation>
    </message>
    <message>
        <source>Score total of die showing.</source>
        <translation>Summe aller Würfel.</translation>
    </message>
    <message>
        <source>Left......</source>
        <translation>Links......</translation>
    </message>
    <message>
        <source>Right....</source>
        <translation>Rechts....</translation>
    </message>
    <message>
        <source>Bonus..</source>
        <translation>Bonus..</translation>
    </message>
    <message>
        <source>Total....</source>
        <translation>Summe...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Neues Spiel</translation>
    </message>
    <message>
        <source>Change &amp;Players...</source>
        <translation>&amp;Spieler wechseln...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Remember Players</source>
        <translation>Spieler &amp;merken</translation>
    </message>
    <message>
        <source>Use &amp;Keyboard</source>
        <translation>&amp;Tastatur verwenden</translation>
    </message>
    <message>
        <source>Show &amp;Scoring Preview</source>
        <translation>Punkte&amp;vorschau zeigen</translation>
    </message>
    <message>
        <source>&amp;Animate Rolling</source>
        <translation>Würfeln &amp;animieren</translation>
    </message>
    <message>
        <source>Scoring Su&amp;mmary...</source>
        <translation>Punkte&amp;übersicht...</translation>
    </message>
    <message>
        <source>&amp;High Scores...</source>
        <translation>&amp;Bestenliste...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Inhalt...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>Ü&amp;ber Zarvo...</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Annehmen</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Würfeln</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source> Zarvo - New Game</source>
        <translation> Zarvo - Neues Spiel</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Play another game?</source>
        <translation>Noch ein Spiel?</translation>
    </message>
</context>
<context>
    <name>frmPlayerResults</name>
    <message>
        <source>Zarvo - Results</source>
        <translation>Zarvo - Ergebnisse</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Höchster</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Tiefster</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Session:</source>
        <translation>Sitzung:</translation>
    </message>
    <message>
        <source>All-time:</source>
        <translation>Gesamt:</translation>
    </message>
</context>
<context>
    <name>frmPlayers</name>
    <message>
        <source>&lt; None &gt;</source>
        <translation>&lt; Keiner &gt;</translation>
    </message>
    <message>
        <source>&lt; Player %1 &gt;</source>
        <translation>&lt; Spieler %1 &gt;</translation>
    </message>
    <message>
        <source> Zarvo - Change Players</source>
        <translation> Zarvo - Spieler wechseln</translation>
    </message>
    <message>
        <source>Note: to be able to add or remove players, the file &apos;Zarvo.dat&apos; must exist in the same directory at the program file &apos;Zarvo.exe&apos;. </source>
        <translation>Hinweis: Um Spieler hinzufügen oder entfernen zu können, muss die Datei &apos;Zarvo.dat&apos; im selben Ordner wie das Programm liegen. </translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Play with the previously selected players.</source>
        <translation>Mit den bisherigen Spielern weiterspielen.</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>S&amp;pielen</translation>
    </message>
    <message>
        <source>Play with the currently selected players.</source>
        <translation>Mit den jetzt gewählten Spielern spielen.</translation>
    </message>
    <message>
        <source>Selected Players:</source>
        <translation>Gewählte Spieler:</translation>
    </message>
    <message>
        <source>Player %1:</source>
        <translation>Spieler %1:</translation>
    </message>
    <message>
        <source>Select player #%1.</source>
        <translation>Spieler Nr. %1 wählen.</translation>
    </message>
    <message>
        <source>Player %1</source>
        <translation>Spieler %1</translation>
    </message>
    <message>
        <source>Add/Remove Players</source>
        <translation>Spieler hinzufügen/entfernen</translation>
    </message>
    <message>
        <source>Select player to remove, or enter name to add.</source>
        <translation>Spieler zum Entfernen wählen oder neuen Namen eingeben.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Spielername</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzu</translation>
    </message>
    <message>
        <source>Add the player to the list.</source>
        <translation>Den Spieler in die Liste aufnehmen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected player from the list.</source>
        <translation>Den gewählten Spieler aus der Liste entfernen.</translation>
    </message>
</context>
<context>
    <name>frmSummary</name>
    <message>
        <source>Zarvo - Scoring Summary</source>
        <translation>Zarvo - Punkteübersicht</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Spieler:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>Bonus:</source>
        <translation>Bonus:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Summe:</translation>
    </message>
    <message>
        <source>Zarvos:</source>
        <translation>Zarvos:</translation>
    </message>
    <message>
        <source>Totals:</source>
        <translation>Summen:</translation>
    </message>
</context>
<context>
    <name>modCommon</name>
    <message>
        <source>Player %1</source>
        <translation>Spieler %1</translation>
    </message>
</context>
<context>
    <name>modDatabase</name>
    <message>
        <source>There was an error opening the<byte value="xd"/>
data file. Please make sure the file<byte value="xd"/>
&apos;Zarvo.dat&apos; exists in this directory.</source>
        <translation>Beim Öffnen der Datendatei ist ein<byte value="xd"/>
Fehler aufgetreten. Bitte prüfe, ob die<byte value="xd"/>
Datei &apos;Zarvo.dat&apos; in diesem Ordner liegt.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Fehler in der Datendatei</translation>
    </message>
</context>
</TS>
