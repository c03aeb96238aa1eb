<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>FormatDate</name>
    <message>
        <source>Jan</source>
        <translation>janv.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>févr.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>avr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juil.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>oct.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>déc.</translation>
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
        <translation>Aucun dé sélectionné.</translation>
    </message>
    <message>
        <source>Are you satisfied with the roll?</source>
        <translation>Êtes-vous satisfait du lancer&#xa0;?</translation>
    </message>
    <message>
        <source>Zarvo - Confirm</source>
        <translation>Zarvo - Confirmation</translation>
    </message>
    <message>
        <source>Do you want to enable keyboard use?</source>
        <translation>Voulez-vous jouer avec le clavier&#xa0;?</translation>
    </message>
    <message>
        <source>Zarvo - Enable Keyboard</source>
        <translation>Zarvo - Activer le clavier</translation>
    </message>
    <message>
        <source>%1&apos;s Scoreboard</source>
        <translation>Feuille de marque de %1</translation>
    </message>
    <message>
        <source>%1&apos;s turn. Please roll.</source>
        <translation>À %1 de jouer. Lancez les dés.</translation>
    </message>
    <message>
        <source>Scoring category</source>
        <translation>Catégorie à remplir</translation>
    </message>
    <message>
        <source>Take a zero?</source>
        <translation>Inscrire un zéro&#xa0;?</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zarvo Help</source>
        <translation>Aide de Zarvo</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Index</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Recherche</translation>
    </message>
    <message>
        <source>There is no help to show: the help file &quot;%1&quot; could not be read.</source>
        <translation>Aucune aide à afficher&#xa0;: le fichier d&apos;aide «&#xa0;%1&#xa0;» n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <source>&amp;Type the first letters of a keyword:</source>
        <translation>&amp;Tapez le début d&apos;un mot-clé&#xa0;:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
</context>
<context>
    <name>HighScoreCheck</name>
    <message>
        <source>High scores will not be saved.</source>
        <translation>Les meilleurs scores ne seront pas enregistrés.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Erreur du fichier de données</translation>
    </message>
    <message>
        <source>There was an error opening the data file.</source>
        <translation>Une erreur s&apos;est produite à l&apos;ouverture du fichier de données.</translation>
    </message>
    <message>
        <source>There was an error writing the data file.</source>
        <translation>Une erreur s&apos;est produite à l&apos;écriture du fichier de données.</translation>
    </message>
</context>
<context>
    <name>PlayerSelection</name>
    <message>
        <source>There is an error in the data file.</source>
        <translation>Le fichier de données contient une erreur.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Open Data File</source>
        <translation>Zarvo - Fichier de données inaccessible</translation>
    </message>
    <message>
        <source>Please enter a name to add.</source>
        <translation>Veuillez saisir le nom à ajouter.</translation>
    </message>
    <message>
        <source>Zarvo - Please Enter a Name</source>
        <translation>Zarvo - Veuillez saisir un nom</translation>
    </message>
    <message>
        <source>Cannot add player; the player already exists.</source>
        <translation>Impossible d&apos;ajouter le joueur&#xa0;: il existe déjà.</translation>
    </message>
    <message>
        <source>Zarvo - Already Have Player</source>
        <translation>Zarvo - Joueur déjà présent</translation>
    </message>
    <message>
        <source>The information will not be saved.</source>
        <translation>Les informations ne seront pas enregistrées.</translation>
    </message>
    <message>
        <source>Player not found - cannot remove player.</source>
        <translation>Joueur introuvable - impossible de le supprimer.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Remove</source>
        <translation>Zarvo - Suppression impossible</translation>
    </message>
    <message>
        <source>Cannot remove a player<byte value="xd"/>
that is currently selected.</source>
        <translation>Impossible de supprimer un joueur<byte value="xd"/>
qui est sélectionné.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
this player? All saved information<byte value="xd"/>
for the player will be lost.</source>
        <translation>Voulez-vous vraiment supprimer<byte value="xd"/>
ce joueur&#xa0;? Toutes les informations<byte value="xd"/>
enregistrées pour lui seront perdues.</translation>
    </message>
    <message>
        <source>Zarvo - Confirm Delete</source>
        <translation>Zarvo - Confirmer la suppression</translation>
    </message>
    <message>
        <source>The removal will not be saved.</source>
        <translation>La suppression ne sera pas enregistrée.</translation>
    </message>
</context>
<context>
    <name>PlayerStatistics</name>
    <message>
        <source>Congratulations, an all-time high!</source>
        <translation>Bravo, un nouveau record absolu&#xa0;!</translation>
    </message>
    <message>
        <source>An all-time low! Better luck next time!</source>
        <translation>Pire score absolu&#xa0;! Courage, ça ira mieux&#xa0;!</translation>
    </message>
    <message>
        <source>Congratulations, a new session high!</source>
        <translation>Bravo, meilleur score de la séance&#xa0;!</translation>
    </message>
    <message>
        <source>A new session low! Better luck next time!</source>
        <translation>Pire score de la séance&#xa0;! Ça ira mieux&#xa0;!</translation>
    </message>
    <message>
        <source>You bettered your overall average...</source>
        <translation>Moyenne générale améliorée...</translation>
    </message>
    <message>
        <source>Brought your overall average down...</source>
        <translation>Moyenne générale en baisse...</translation>
    </message>
    <message>
        <source>Your overall average didn&apos;t change...</source>
        <translation>Moyenne générale inchangée...</translation>
    </message>
    <message>
        <source>You bettered your session average...</source>
        <translation>Moyenne de la séance améliorée...</translation>
    </message>
    <message>
        <source>Brought your session average down...</source>
        <translation>Moyenne de la séance en baisse...</translation>
    </message>
    <message>
        <source>Your session average didn&apos;t change...</source>
        <translation>Moyenne de la séance inchangée...</translation>
    </message>
    <message>
        <source>%1&apos;s Results:</source>
        <translation>Résultats de %1&#xa0;:</translation>
    </message>
    <message>
        <source>%1 Scored: %2</source>
        <translation>%1 a marqué&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>SpokenTable</name>
    <message>
        <source>Rolling</source>
        <translation>Lancer en cours</translation>
    </message>
    <message>
        <source>one</source>
        <translation>un</translation>
    </message>
    <message>
        <source>two</source>
        <translation>deux</translation>
    </message>
    <message>
        <source>three</source>
        <translation>trois</translation>
    </message>
    <message>
        <source>four</source>
        <translation>quatre</translation>
    </message>
    <message>
        <source>five</source>
        <translation>cinq</translation>
    </message>
    <message>
        <source>six</source>
        <translation>six</translation>
    </message>
    <message>
        <source>Die %1: on the pile</source>
        <translation>Dé %1&#xa0;: sur le tas</translation>
    </message>
    <message>
        <source>Keep die %1: %2</source>
        <translation>Garder le dé %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Die %1: %2</source>
        <translation>Dé %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>open</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>open, would score nothing</source>
        <translation>libre, ne rapporterait rien</translation>
    </message>
    <message>
        <source>open, would score %1 and a bonus of %2</source>
        <translation>libre, rapporterait %1 et un bonus de %2</translation>
    </message>
    <message>
        <source>open, would score %1</source>
        <translation>libre, rapporterait %1</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dés</translation>
    </message>
    <message>
        <source>No rolls left.</source>
        <translation>Plus aucun lancer.</translation>
    </message>
    <message>
        <source>One roll left.</source>
        <translation>Encore un lancer.</translation>
    </message>
    <message>
        <source>Two rolls left.</source>
        <translation>Encore deux lancers.</translation>
    </message>
    <message>
        <source>Rolled %1.</source>
        <translation>Lancer&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1: %2 and a bonus of %3 written.</source>
        <translation>%1&#xa0;: %2 et un bonus de %3 inscrits.</translation>
    </message>
    <message>
        <source>%1: %2 written.</source>
        <translation>%1&#xa0;: %2 inscrit.</translation>
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
        <translation>Cinq dés et une feuille de marque pour un à huit joueurs.</translation>
    </message>
    <message>
        <source>Made by the Zarvo developers.</source>
        <translation>Par les développeurs de Zarvo.</translation>
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
        <translation>Zarvo - Meilleur score</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Félicitations&#xa0;!</translation>
    </message>
    <message>
        <source>You got a High Score!</source>
        <translation>Un des meilleurs scores&#xa0;!</translation>
    </message>
    <message>
        <source>(Please enter your name as you want it to appear.)</source>
        <translation>(Entrez votre nom tel qu&apos;il doit figurer.)</translation>
    </message>
    <message>
        <source>Player Name:</source>
        <translation>Nom du joueur&#xa0;:</translation>
    </message>
    <message>
        <source>Enter your name.</source>
        <translation>Saisissez votre nom.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nom du joueur</translation>
    </message>
</context>
<context>
    <name>frmHighScores</name>
    <message>
        <source>Zarvo - High Scores</source>
        <translation>Zarvo - Meilleurs scores</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Joueur&#xa0;:</translation>
    </message>
    <message>
        <source>Score:</source>
        <translation>Score&#xa0;:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date&#xa0;:</translation>
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
        <translation>Lancer les dés ou accepter le lancer.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Tenu</translation>
    </message>
    <message>
        <source>Roll</source>
        <comment>the word over a die</comment>
        <translation>Jeter</translation>
    </message>
    <message>
        <source>Column of die %1</source>
        <translation>Colonne du dé %1</translation>
    </message>
    <message>
        <source>Please select a scoring category.</source>
        <translation>Veuillez choisir une catégorie.</translation>
    </message>
    <message>
        <source>Ones....</source>
        <translation>As..........</translation>
    </message>
    <message>
        <source>Score total of ones showing.</source>
        <translation>Total des as.</translation>
    </message>
    <message>
        <source>Twos....</source>
        <translation>Deux......</translation>
    </message>
    <message>
        <source>Score total of twos showing.</source>
        <translation>Total des deux.</translation>
    </message>
    <message>
        <source>Threes..</source>
        <translation>Trois......</translation>
    </message>
    <message>
        <source>Score total of threes showing.</source>
        <translation>Total des trois.</translation>
    </message>
    <message>
        <source>Fours....</source>
        <translation>Quatre....</translation>
    </message>
    <message>
        <source>Score total of fours showing.</source>
        <translation>Total des quatre.</translation>
    </message>
    <message>
        <source>Fives....</source>
        <translation>Cinq.......</translation>
    </message>
    <message>
        <source>Score total of fives showing.</source>
        <translation>Total des cinq.</translation>
    </message>
    <message>
        <source>Sixes....</source>
        <translation>Six..........</translation>
    </message>
    <message>
        <source>Score total of sixes showing.</source>
        <translation>Total des six.</translation>
    </message>
    <message>
        <source>Three of a Kind..</source>
        <translation>Brelan..............</translation>
    </message>
    <message>
        <source>Three of one die type. (Score total of die showing.)</source>
        <translation>Trois dés identiques. (Total des dés.)</translation>
    </message>
    <message>
        <source>Four of a Kind....</source>
        <translation>Carré................</translation>
    </message>
    <message>
        <source>Four of one die type. (Score total of die showing.)</source>
        <translation>Quatre dés identiques. (Total des dés.)</translation>
    </message>
    <message>
        <source>Full House.........</source>
        <translation>Full House.........</translation>
    </message>
    <message>
        <source>Two of a kind + three of a kind. (Score 25.)</source>
        <translation>Une paire + un brelan. (25 points.)</translation>
    </message>
    <message>
        <source>Small Straight....</source>
        <translation>Petite suite.......</translation>
    </message>
    <message>
        <source>1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)</source>
        <translation>1-2-3-4, 2-3-4-5 ou 3-4-5-6. (30 points.)</translation>
    </message>
    <message>
        <source>Large Straight...</source>
        <translation>Grande suite......</translation>
    </message>
    <message>
        <source>1-2-3-4-5 or 2-3-4-5-6. (Score 35.)</source>
        <translation>1-2-3-4-5 ou 2-3-4-5-6. (35 points.)</translation>
    </message>
    <message>
        <source>Zarvo................</source>
        <translation>Zarvo................</translation>
    </message>
    <message>
        <source>Five of one die type. (Score 50.)</source>
        <translation>Cinq dés identiques. (50 points.)</translation>
    </message>
    <message>
        <source>Chance.............</source>
        <translation>Chance.............</translation>
    </message>
    <message>
        <source>Score total of die showing.</source>
        <translation>Total des dés.</translation>
    </message>
    <message>
        <source>Left......</source>
        <translation>Gauche.</translation>
    </message>
    <message>
        <source>Right....</source>
        <translation>Droite.....</translation>
    </message>
    <message>
        <source>Bonus..</source>
        <translation>Bonus..</translation>
    </message>
    <message>
        <source>Total....</source>
        <translation>Total.....</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Nouvelle partie</translation>
    </message>
    <message>
        <source>Change &amp;Players...</source>
        <translation>Changer de &amp;joueurs...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Remember Players</source>
        <translation>&amp;Mémoriser les joueurs</translation>
    </message>
    <message>
        <source>Use &amp;Keyboard</source>
        <translation>Utiliser le &amp;clavier</translation>
    </message>
    <message>
        <source>Show &amp;Scoring Preview</source>
        <translation>Afficher l&apos;a&amp;perçu des points</translation>
    </message>
    <message>
        <source>&amp;Animate Rolling</source>
        <translation>&amp;Animer les dés</translation>
    </message>
    <message>
        <source>Scoring Su&amp;mmary...</source>
        <translation>&amp;Récapitulatif des points...</translation>
    </message>
    <message>
        <source>&amp;High Scores...</source>
        <translation>Meilleurs &amp;scores...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Sommaire...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À &amp;propos de Zarvo...</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Accepter</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Lancer</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source> Zarvo - New Game</source>
        <translation> Zarvo - Nouvelle partie</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Play another game?</source>
        <translation>Encore une partie&#xa0;?</translation>
    </message>
</context>
<context>
    <name>frmPlayerResults</name>
    <message>
        <source>Zarvo - Results</source>
        <translation>Zarvo - Résultats</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Meilleur</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Pire</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Session:</source>
        <translation>Séance&#xa0;:</translation>
    </message>
    <message>
        <source>All-time:</source>
        <translation>Au total&#xa0;:</translation>
    </message>
</context>
<context>
    <name>frmPlayers</name>
    <message>
        <source>&lt; None &gt;</source>
        <translation>&lt; Aucun &gt;</translation>
    </message>
    <message>
        <source>&lt; Player %1 &gt;</source>
        <translation>&lt; Joueur %1 &gt;</translation>
    </message>
    <message>
        <source> Zarvo - Change Players</source>
        <translation> Zarvo - Changer de joueurs</translation>
    </message>
    <message>
        <source>Note: to be able to add or remove players, the file &apos;Zarvo.dat&apos; must exist in the same directory at the program file &apos;Zarvo.exe&apos;. </source>
        <translation>Remarque&#xa0;: pour ajouter ou supprimer des joueurs, le fichier &apos;Zarvo.dat&apos; doit se trouver dans le dossier du programme. </translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Play with the previously selected players.</source>
        <translation>Continuer avec les joueurs choisis avant.</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Jouer</translation>
    </message>
    <message>
        <source>Play with the currently selected players.</source>
        <translation>Jouer avec les joueurs choisis ici.</translation>
    </message>
    <message>
        <source>Selected Players:</source>
        <translation>Joueurs choisis&#xa0;:</translation>
    </message>
    <message>
        <source>Player %1:</source>
        <translation>Joueur %1&#xa0;:</translation>
    </message>
    <message>
        <source>Select player #%1.</source>
        <translation>Choisir le joueur n°&#xa0;%1.</translation>
    </message>
    <message>
        <source>Player %1</source>
        <translation>Joueur %1</translation>
    </message>
    <message>
        <source>Add/Remove Players</source>
        <translation>Ajouter/supprimer des joueurs</translation>
    </message>
    <message>
        <source>Select player to remove, or enter name to add.</source>
        <translation>Choisissez un joueur à supprimer ou saisissez un nom à ajouter.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nom du joueur</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add the player to the list.</source>
        <translation>Ajouter le joueur à la liste.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove the selected player from the list.</source>
        <translation>Retirer le joueur choisi de la liste.</translation>
    </message>
</context>
<context>
    <name>frmSummary</name>
    <message>
        <source>Zarvo - Scoring Summary</source>
        <translation>Zarvo - Récapitulatif des points</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Joueur&#xa0;:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>G.&#xa0;:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite&#xa0;:</translation>
    </message>
    <message>
        <source>Bonus:</source>
        <translation>Bonus&#xa0;:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Total&#xa0;:</translation>
    </message>
    <message>
        <source>Zarvos:</source>
        <translation>Zarvos&#xa0;:</translation>
    </message>
    <message>
        <source>Totals:</source>
        <translation>Totaux&#xa0;:</translation>
    </message>
</context>
<context>
    <name>modCommon</name>
    <message>
        <source>Player %1</source>
        <translation>Joueur %1</translation>
    </message>
</context>
<context>
    <name>modDatabase</name>
    <message>
        <source>There was an error opening the<byte value="xd"/>
data file. Please make sure the file<byte value="xd"/>
&apos;Zarvo.dat&apos; exists in this directory.</source>
        <translation>Une erreur s&apos;est produite à l&apos;ouverture<byte value="xd"/>
du fichier de données. Vérifiez que le<byte value="xd"/>
fichier &apos;Zarvo.dat&apos; existe dans ce dossier.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Erreur du fichier de données</translation>
    </message>
</context>
</TS>
