<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>FormatDate</name>
    <message>
        <source>Jan</source>
        <translation>gen</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mag</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>giu</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lug</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>set</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>ott</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dic</translation>
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
        <translation>Nessun dado scelto.</translation>
    </message>
    <message>
        <source>Are you satisfied with the roll?</source>
        <translation>Ti va bene questo tiro?</translation>
    </message>
    <message>
        <source>Zarvo - Confirm</source>
        <translation>Zarvo - Conferma</translation>
    </message>
    <message>
        <source>Do you want to enable keyboard use?</source>
        <translation>Vuoi attivare l&apos;uso della tastiera?</translation>
    </message>
    <message>
        <source>Zarvo - Enable Keyboard</source>
        <translation>Zarvo - Attiva la tastiera</translation>
    </message>
    <message>
        <source>%1&apos;s Scoreboard</source>
        <translation>Scheda di %1</translation>
    </message>
    <message>
        <source>%1&apos;s turn. Please roll.</source>
        <translation>%1, ora tiri tu.</translation>
    </message>
    <message>
        <source>Scoring category</source>
        <translation>Categoria in cui segnare</translation>
    </message>
    <message>
        <source>Take a zero?</source>
        <translation>Segnare uno zero?</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zarvo Help</source>
        <translation>Guida di Zarvo</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommario</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Indice</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Cerca</translation>
    </message>
    <message>
        <source>There is no help to show: the help file &quot;%1&quot; could not be read.</source>
        <translation>Nessuna guida da mostrare: impossibile leggere il file della guida «%1».</translation>
    </message>
    <message>
        <source>&amp;Type the first letters of a keyword:</source>
        <translation>&amp;Digita l&apos;inizio di una parola chiave:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
</context>
<context>
    <name>HighScoreCheck</name>
    <message>
        <source>High scores will not be saved.</source>
        <translation>I migliori punteggi non verranno salvati.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Errore nel file dei dati</translation>
    </message>
    <message>
        <source>There was an error opening the data file.</source>
        <translation>Si è verificato un errore nell&apos;apertura del file dei dati.</translation>
    </message>
    <message>
        <source>There was an error writing the data file.</source>
        <translation>Si è verificato un errore nella scrittura del file dei dati.</translation>
    </message>
</context>
<context>
    <name>PlayerSelection</name>
    <message>
        <source>There is an error in the data file.</source>
        <translation>Il file dei dati contiene un errore.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Open Data File</source>
        <translation>Zarvo - Impossibile aprire il file dei dati</translation>
    </message>
    <message>
        <source>Please enter a name to add.</source>
        <translation>Scrivi il nome da aggiungere.</translation>
    </message>
    <message>
        <source>Zarvo - Please Enter a Name</source>
        <translation>Zarvo - Scrivi un nome</translation>
    </message>
    <message>
        <source>Cannot add player; the player already exists.</source>
        <translation>Impossibile aggiungere il giocatore: esiste già.</translation>
    </message>
    <message>
        <source>Zarvo - Already Have Player</source>
        <translation>Zarvo - Giocatore già presente</translation>
    </message>
    <message>
        <source>The information will not be saved.</source>
        <translation>I dati non verranno salvati.</translation>
    </message>
    <message>
        <source>Player not found - cannot remove player.</source>
        <translation>Giocatore non trovato: impossibile rimuoverlo.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Remove</source>
        <translation>Zarvo - Impossibile rimuovere</translation>
    </message>
    <message>
        <source>Cannot remove a player<byte value="xd"/>
that is currently selected.</source>
        <translation>Impossibile rimuovere un giocatore<byte value="xd"/>
attualmente selezionato.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
this player? All saved information<byte value="xd"/>
for the player will be lost.</source>
        <translation>Vuoi davvero eliminare questo<byte value="xd"/>
giocatore? Tutti i suoi dati<byte value="xd"/>
salvati andranno persi.</translation>
    </message>
    <message>
        <source>Zarvo - Confirm Delete</source>
        <translation>Zarvo - Conferma eliminazione</translation>
    </message>
    <message>
        <source>The removal will not be saved.</source>
        <translation>La rimozione non verrà salvata.</translation>
    </message>
</context>
<context>
    <name>PlayerStatistics</name>
    <message>
        <source>Congratulations, an all-time high!</source>
        <translation>Complimenti, nuovo record assoluto!</translation>
    </message>
    <message>
        <source>An all-time low! Better luck next time!</source>
        <translation>Minimo assoluto! Andrà meglio la prossima!</translation>
    </message>
    <message>
        <source>Congratulations, a new session high!</source>
        <translation>Complimenti, record della sessione!</translation>
    </message>
    <message>
        <source>A new session low! Better luck next time!</source>
        <translation>Minimo della sessione! Andrà meglio!</translation>
    </message>
    <message>
        <source>You bettered your overall average...</source>
        <translation>Hai migliorato la tua media generale...</translation>
    </message>
    <message>
        <source>Brought your overall average down...</source>
        <translation>Hai abbassato la tua media generale...</translation>
    </message>
    <message>
        <source>Your overall average didn&apos;t change...</source>
        <translation>La tua media generale non cambia...</translation>
    </message>
    <message>
        <source>You bettered your session average...</source>
        <translation>Hai migliorato la media della sessione...</translation>
    </message>
    <message>
        <source>Brought your session average down...</source>
        <translation>Hai abbassato la media della sessione...</translation>
    </message>
    <message>
        <source>Your session average didn&apos;t change...</source>
        <translation>La media della sessione non cambia...</translation>
    </message>
    <message>
        <source>%1&apos;s Results:</source>
        <translation>Risultati di %1:</translation>
    </message>
    <message>
        <source>%1 Scored: %2</source>
        <translation>Punteggio di %1: %2</translation>
    </message>
</context>
<context>
    <name>SpokenTable</name>
    <message>
        <source>Rolling</source>
        <translation>Tiro in corso</translation>
    </message>
    <message>
        <source>one</source>
        <translation>uno</translation>
    </message>
    <message>
        <source>two</source>
        <translation>due</translation>
    </message>
    <message>
        <source>three</source>
        <translation>tre</translation>
    </message>
    <message>
        <source>four</source>
        <translation>quattro</translation>
    </message>
    <message>
        <source>five</source>
        <translation>cinque</translation>
    </message>
    <message>
        <source>six</source>
        <translation>sei</translation>
    </message>
    <message>
        <source>Die %1: on the pile</source>
        <translation>Dado %1: nel mucchio</translation>
    </message>
    <message>
        <source>Keep die %1: %2</source>
        <translation>Tieni il dado %1: %2</translation>
    </message>
    <message>
        <source>Die %1: %2</source>
        <translation>Dado %1: %2</translation>
    </message>
    <message>
        <source>open</source>
        <translation>libera</translation>
    </message>
    <message>
        <source>open, would score nothing</source>
        <translation>libera, non darebbe nulla</translation>
    </message>
    <message>
        <source>open, would score %1 and a bonus of %2</source>
        <translation>libera, darebbe %1 e un bonus di %2</translation>
    </message>
    <message>
        <source>open, would score %1</source>
        <translation>libera, darebbe %1</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dadi</translation>
    </message>
    <message>
        <source>No rolls left.</source>
        <translation>Nessun tiro rimasto.</translation>
    </message>
    <message>
        <source>One roll left.</source>
        <translation>Resta un tiro.</translation>
    </message>
    <message>
        <source>Two rolls left.</source>
        <translation>Restano due tiri.</translation>
    </message>
    <message>
        <source>Rolled %1.</source>
        <translation>Usciti: %1.</translation>
    </message>
    <message>
        <source>%1: %2 and a bonus of %3 written.</source>
        <translation>%1: segnati %2 e un bonus di %3.</translation>
    </message>
    <message>
        <source>%1: %2 written.</source>
        <translation>%1: segnato %2.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Five dice and a score card for one to eight players.</source>
        <translation>Cinque dadi e una scheda dei punti, da uno a otto giocatori.</translation>
    </message>
    <message>
        <source>Made by the Zarvo developers.</source>
        <translation>Realizzato dagli sviluppatori di Zarvo.</translation>
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
        <translation>Zarvo - Miglior punteggio</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Complimenti!</translation>
    </message>
    <message>
        <source>You got a High Score!</source>
        <translation>Sei tra i primi dieci!</translation>
    </message>
    <message>
        <source>(Please enter your name as you want it to appear.)</source>
        <translation>(Scrivi il tuo nome come vuoi che appaia.)</translation>
    </message>
    <message>
        <source>Player Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Enter your name.</source>
        <translation>Scrivi il tuo nome.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nome del giocatore</translation>
    </message>
</context>
<context>
    <name>frmHighScores</name>
    <message>
        <source>Zarvo - High Scores</source>
        <translation>Zarvo - Migliori punteggi</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Giocatore:</translation>
    </message>
    <message>
        <source>Score:</source>
        <translation>Punti:</translation>
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
        <translation>Tira o accetta il tiro.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Tieni</translation>
    </message>
    <message>
        <source>Roll</source>
        <comment>the word over a die</comment>
        <translation>Tira</translation>
    </message>
    <message>
        <source>Column of die %1</source>
        <translation>Colonna del dado %1</translation>
    </message>
    <message>
        <source>Please select a scoring category.</source>
        <translation>Scegli la categoria in cui segnare.</translation>
    </message>
    <message>
        <source>Ones....</source>
        <translation>Uno......</translation>
    </message>
    <message>
        <source>Score total of ones showing.</source>
        <translation>Somma degli uno.</translation>
    </message>
    <message>
        <source>Twos....</source>
        <translation>Due......</translation>
    </message>
    <message>
        <source>Score total of twos showing.</source>
        <translation>Somma dei due.</translation>
    </message>
    <message>
        <source>Threes..</source>
        <translation>Tre........</translation>
    </message>
    <message>
        <source>Score total of threes showing.</source>
        <translation>Somma dei tre.</translation>
    </message>
    <message>
        <source>Fours....</source>
        <translation>Quattro..</translation>
    </message>
    <message>
        <source>Score total of fours showing.</source>
        <translation>Somma dei quattro.</translation>
    </message>
    <message>
        <source>Fives....</source>
        <translation>Cinque..</translation>
    </message>
    <message>
        <source>Score total of fives showing.</source>
        <translation>Somma dei cinque.</translation>
    </message>
    <message>
        <source>Sixes....</source>
        <translation>Sei........</translation>
    </message>
    <message>
        <source>Score total of sixes showing.</source>
        <translation>Somma dei sei.</translation>
    </message>
    <message>
        <source>Three of a Kind..</source>
        <translation>Tris.....................</translation>
    </message>
    <message>
        <source>Three of one die type. (Score total of die showing.)</source>
        <translation>Tre dadi uguali. (Somma di tutti i dadi.)</translation>
    </message>
    <message>
        <source>Four of a Kind....</source>
        <translation>Poker.................</translation>
    </message>
    <message>
        <source>Four of one die type. (Score total of die showing.)</source>
        <translation>Quattro dadi uguali. (Somma di tutti i dadi.)</translation>
    </message>
    <message>
        <source>Full House.........</source>
        <translation>Full.....................</translation>
    </message>
    <message>
        <source>Two of a kind + three of a kind. (Score 25.)</source>
        <translation>Una coppia + un tris. (25 punti.)</translation>
    </message>
    <message>
        <source>Small Straight....</source>
        <translation>Piccola scala...</translation>
    </message>
    <message>
        <source>1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)</source>
        <translation>1-2-3-4, 2-3-4-5 o 3-4-5-6. (30 punti.)</translation>
    </message>
    <message>
        <source>Large Straight...</source>
        <translation>Grande scala...</translation>
    </message>
    <message>
        <source>1-2-3-4-5 or 2-3-4-5-6. (Score 35.)</source>
        <translation>1-2-3-4-5 o 2-3-4-5-6. (35 punti.)</translation>
    </message>
    <message>
        <source>Zarvo................</source>
        <translation>Zarvo................</translation>
    </message>
    <message>
        <source>Five of one die type. (Score 50.)</source>
        <translation>Cinque dadi uguali. (50 punti.)</translation>
    </message>
    <message>
        <source>Chance.............</source>
        <translation>Chance.............</translation>
    </message>
    <message>
        <source>Score total of die showing.</source>
        <translation>Somma di tutti i dadi.</translation>
    </message>
    <message>
        <source>Left......</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Right....</source>
        <translation>Destra..</translation>
    </message>
    <message>
        <source>Bonus..</source>
        <translation>Bonus..</translation>
    </message>
    <message>
        <source>Total....</source>
        <translation>Totale...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Nuova partita</translation>
    </message>
    <message>
        <source>Change &amp;Players...</source>
        <translation>Cambia &amp;giocatori...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opzioni</translation>
    </message>
    <message>
        <source>&amp;Remember Players</source>
        <translation>Ricorda i &amp;giocatori</translation>
    </message>
    <message>
        <source>Use &amp;Keyboard</source>
        <translation>Usa la &amp;tastiera</translation>
    </message>
    <message>
        <source>Show &amp;Scoring Preview</source>
        <translation>Mostra l&apos;ante&amp;prima dei punti</translation>
    </message>
    <message>
        <source>&amp;Animate Rolling</source>
        <translation>&amp;Anima i dadi</translation>
    </message>
    <message>
        <source>Scoring Su&amp;mmary...</source>
        <translation>&amp;Riepilogo punteggi...</translation>
    </message>
    <message>
        <source>&amp;High Scores...</source>
        <translation>&amp;Migliori punteggi...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Sommario...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Informazioni su Zarvo...</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Accetta</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Tira</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source> Zarvo - New Game</source>
        <translation> Zarvo - Nuova partita</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Play another game?</source>
        <translation>Un&apos;altra partita?</translation>
    </message>
</context>
<context>
    <name>frmPlayerResults</name>
    <message>
        <source>Zarvo - Results</source>
        <translation>Zarvo - Risultati</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Massimo</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Session:</source>
        <translation>Sessione:</translation>
    </message>
    <message>
        <source>All-time:</source>
        <translation>Storico:</translation>
    </message>
</context>
<context>
    <name>frmPlayers</name>
    <message>
        <source>&lt; None &gt;</source>
        <translation>&lt; Nessuno &gt;</translation>
    </message>
    <message>
        <source>&lt; Player %1 &gt;</source>
        <translation>&lt; Giocatore %1 &gt;</translation>
    </message>
    <message>
        <source> Zarvo - Change Players</source>
        <translation> Zarvo - Cambia giocatori</translation>
    </message>
    <message>
        <source>Note: to be able to add or remove players, the file &apos;Zarvo.dat&apos; must exist in the same directory at the program file &apos;Zarvo.exe&apos;. </source>
        <translation>Nota: per poter aggiungere o rimuovere giocatori, il file «Zarvo.dat» deve trovarsi nella stessa cartella del programma. </translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
    <message>
        <source>Play with the previously selected players.</source>
        <translation>Continua con i giocatori scelti prima.</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Gioca</translation>
    </message>
    <message>
        <source>Play with the currently selected players.</source>
        <translation>Gioca con i giocatori scelti ora.</translation>
    </message>
    <message>
        <source>Selected Players:</source>
        <translation>Giocatori scelti:</translation>
    </message>
    <message>
        <source>Player %1:</source>
        <translation>Posto %1:</translation>
    </message>
    <message>
        <source>Select player #%1.</source>
        <translation>Scegli il giocatore del posto %1.</translation>
    </message>
    <message>
        <source>Player %1</source>
        <translation>Posto %1</translation>
    </message>
    <message>
        <source>Add/Remove Players</source>
        <translation>Aggiungi/rimuovi giocatori</translation>
    </message>
    <message>
        <source>Select player to remove, or enter name to add.</source>
        <translation>Scegli un giocatore da rimuovere o scrivi un nome da aggiungere.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nome del giocatore</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Crea</translation>
    </message>
    <message>
        <source>Add the player to the list.</source>
        <translation>Aggiungi il giocatore all&apos;elenco.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove the selected player from the list.</source>
        <translation>Rimuovi dall&apos;elenco il giocatore scelto.</translation>
    </message>
</context>
<context>
    <name>frmSummary</name>
    <message>
        <source>Zarvo - Scoring Summary</source>
        <translation>Zarvo - Riepilogo punteggi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Giocatore:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Sin.:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Destra:</translation>
    </message>
    <message>
        <source>Bonus:</source>
        <translation>Bonus:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Totale:</translation>
    </message>
    <message>
        <source>Zarvos:</source>
        <translation>Zarvo:</translation>
    </message>
    <message>
        <source>Totals:</source>
        <translation>Totali:</translation>
    </message>
</context>
<context>
    <name>modCommon</name>
    <message>
        <source>Player %1</source>
        <translation>Giocatore %1</translation>
    </message>
</context>
<context>
    <name>modDatabase</name>
    <message>
        <source>There was an error opening the<byte value="xd"/>
data file. Please make sure the file<byte value="xd"/>
&apos;Zarvo.dat&apos; exists in this directory.</source>
        <translation>Si è verificato un errore nell&apos;apertura<byte value="xd"/>
del file dei dati. Controlla che il file<byte value="xd"/>
«Zarvo.dat» si trovi in questa cartella.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Errore nel file dei dati</translation>
    </message>
</context>
</TS>
