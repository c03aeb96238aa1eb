<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>FormatDate</name>
    <message>
        <source>Jan</source>
        <translation>ene.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>abr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>may.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago.</translation>
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
        <translation>dic.</translation>
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
        <translation>Ningún dado marcado.</translation>
    </message>
    <message>
        <source>Are you satisfied with the roll?</source>
        <translation>¿Te quedas con esta tirada?</translation>
    </message>
    <message>
        <source>Zarvo - Confirm</source>
        <translation>Zarvo - Confirmar</translation>
    </message>
    <message>
        <source>Do you want to enable keyboard use?</source>
        <translation>¿Quieres activar el uso del teclado?</translation>
    </message>
    <message>
        <source>Zarvo - Enable Keyboard</source>
        <translation>Zarvo - Activar el teclado</translation>
    </message>
    <message>
        <source>%1&apos;s Scoreboard</source>
        <translation>Hoja de puntos de %1</translation>
    </message>
    <message>
        <source>%1&apos;s turn. Please roll.</source>
        <translation>%1, te toca tirar.</translation>
    </message>
    <message>
        <source>Scoring category</source>
        <translation>Categoría para anotar</translation>
    </message>
    <message>
        <source>Take a zero?</source>
        <translation>¿Anotar un cero?</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zarvo Help</source>
        <translation>Ayuda de Zarvo</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>Í&amp;ndice</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>There is no help to show: the help file &quot;%1&quot; could not be read.</source>
        <translation>No hay ayuda que mostrar: no se pudo leer el archivo de ayuda «%1».</translation>
    </message>
    <message>
        <source>&amp;Type the first letters of a keyword:</source>
        <translation>&amp;Escribe el comienzo de una palabra clave:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
</context>
<context>
    <name>HighScoreCheck</name>
    <message>
        <source>High scores will not be saved.</source>
        <translation>Las mejores puntuaciones no se guardarán.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Error en el archivo de datos</translation>
    </message>
    <message>
        <source>There was an error opening the data file.</source>
        <translation>Se produjo un error al abrir el archivo de datos.</translation>
    </message>
    <message>
        <source>There was an error writing the data file.</source>
        <translation>Se produjo un error al escribir el archivo de datos.</translation>
    </message>
</context>
<context>
    <name>PlayerSelection</name>
    <message>
        <source>There is an error in the data file.</source>
        <translation>El archivo de datos contiene un error.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Open Data File</source>
        <translation>Zarvo - No se puede abrir el archivo de datos</translation>
    </message>
    <message>
        <source>Please enter a name to add.</source>
        <translation>Escribe el nombre que quieres añadir.</translation>
    </message>
    <message>
        <source>Zarvo - Please Enter a Name</source>
        <translation>Zarvo - Escribe un nombre</translation>
    </message>
    <message>
        <source>Cannot add player; the player already exists.</source>
        <translation>No se puede añadir el jugador: ya existe.</translation>
    </message>
    <message>
        <source>Zarvo - Already Have Player</source>
        <translation>Zarvo - El jugador ya existe</translation>
    </message>
    <message>
        <source>The information will not be saved.</source>
        <translation>Los datos no se guardarán.</translation>
    </message>
    <message>
        <source>Player not found - cannot remove player.</source>
        <translation>Jugador no encontrado: no se puede eliminar.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Remove</source>
        <translation>Zarvo - No se puede eliminar</translation>
    </message>
    <message>
        <source>Cannot remove a player<byte value="xd"/>
that is currently selected.</source>
        <translation>No se puede eliminar un jugador<byte value="xd"/>
que está seleccionado.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
this player? All saved information<byte value="xd"/>
for the player will be lost.</source>
        <translation>¿Seguro que quieres eliminar a este<byte value="xd"/>
jugador? Se perderán todos los datos<byte value="xd"/>
guardados de este jugador.</translation>
    </message>
    <message>
        <source>Zarvo - Confirm Delete</source>
        <translation>Zarvo - Confirmar la eliminación</translation>
    </message>
    <message>
        <source>The removal will not be saved.</source>
        <translation>La eliminación no se guardará.</translation>
    </message>
</context>
<context>
    <name>PlayerStatistics</name>
    <message>
        <source>Congratulations, an all-time high!</source>
        <translation>¡Felicidades, récord absoluto!</translation>
    </message>
    <message>
        <source>An all-time low! Better luck next time!</source>
        <translation>¡Mínimo absoluto! ¡Más suerte la próxima vez!</translation>
    </message>
    <message>
        <source>Congratulations, a new session high!</source>
        <translation>¡Felicidades, récord de la sesión!</translation>
    </message>
    <message>
        <source>A new session low! Better luck next time!</source>
        <translation>¡Mínimo de la sesión! ¡Más suerte la próxima vez!</translation>
    </message>
    <message>
        <source>You bettered your overall average...</source>
        <translation>Mejora tu promedio general...</translation>
    </message>
    <message>
        <source>Brought your overall average down...</source>
        <translation>Baja tu promedio general...</translation>
    </message>
    <message>
        <source>Your overall average didn&apos;t change...</source>
        <translation>Tu promedio general no cambia...</translation>
    </message>
    <message>
        <source>You bettered your session average...</source>
        <translation>Mejora tu promedio de la sesión...</translation>
    </message>
    <message>
        <source>Brought your session average down...</source>
        <translation>Baja tu promedio de la sesión...</translation>
    </message>
    <message>
        <source>Your session average didn&apos;t change...</source>
        <translation>Tu promedio de la sesión no cambia...</translation>
    </message>
    <message>
        <source>%1&apos;s Results:</source>
        <translation>Resultados de %1:</translation>
    </message>
    <message>
        <source>%1 Scored: %2</source>
        <translation>%1: %2 puntos</translation>
    </message>
</context>
<context>
    <name>SpokenTable</name>
    <message>
        <source>Rolling</source>
        <translation>Tirando</translation>
    </message>
    <message>
        <source>one</source>
        <translation>uno</translation>
    </message>
    <message>
        <source>two</source>
        <translation>dos</translation>
    </message>
    <message>
        <source>three</source>
        <translation>tres</translation>
    </message>
    <message>
        <source>four</source>
        <translation>cuatro</translation>
    </message>
    <message>
        <source>five</source>
        <translation>cinco</translation>
    </message>
    <message>
        <source>six</source>
        <translation>seis</translation>
    </message>
    <message>
        <source>Die %1: on the pile</source>
        <translation>Dado %1: en el montón</translation>
    </message>
    <message>
        <source>Keep die %1: %2</source>
        <translation>Guardar dado %1: %2</translation>
    </message>
    <message>
        <source>Die %1: %2</source>
        <translation>Dado %1: %2</translation>
    </message>
    <message>
        <source>open</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>open, would score nothing</source>
        <translation>libre, no daría nada</translation>
    </message>
    <message>
        <source>open, would score %1 and a bonus of %2</source>
        <translation>libre, daría %1 y un bonus de %2</translation>
    </message>
    <message>
        <source>open, would score %1</source>
        <translation>libre, daría %1</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>No rolls left.</source>
        <translation>No quedan tiradas.</translation>
    </message>
    <message>
        <source>One roll left.</source>
        <translation>Queda una tirada.</translation>
    </message>
    <message>
        <source>Two rolls left.</source>
        <translation>Quedan dos tiradas.</translation>
    </message>
    <message>
        <source>Rolled %1.</source>
        <translation>Has sacado %1.</translation>
    </message>
    <message>
        <source>%1: %2 and a bonus of %3 written.</source>
        <translation>%1: %2 y un bonus de %3 anotados.</translation>
    </message>
    <message>
        <source>%1: %2 written.</source>
        <translation>%1: %2 anotados.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Five dice and a score card for one to eight players.</source>
        <translation>Cinco dados y una hoja de puntos para uno a ocho jugadores.</translation>
    </message>
    <message>
        <source>Made by the Zarvo developers.</source>
        <translation>Por los desarrolladores de Zarvo.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>frmHighScoreNotify</name>
    <message>
        <source>Zarvo - High Score</source>
        <translation>Zarvo - Mejor puntuación</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>¡Felicidades!</translation>
    </message>
    <message>
        <source>You got a High Score!</source>
        <translation>¡Entras en los diez mejores!</translation>
    </message>
    <message>
        <source>(Please enter your name as you want it to appear.)</source>
        <translation>(Escribe tu nombre como quieras que aparezca.)</translation>
    </message>
    <message>
        <source>Player Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Enter your name.</source>
        <translation>Escribe tu nombre.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nombre del jugador</translation>
    </message>
</context>
<context>
    <name>frmHighScores</name>
    <message>
        <source>Zarvo - High Scores</source>
        <translation>Zarvo - Mejores puntuaciones</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Jugador:</translation>
    </message>
    <message>
        <source>Score:</source>
        <translation>Puntos:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>Roll or accept roll.</source>
        <translation>Tirar o aceptar la tirada.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Fijo</translation>
    </message>
    <message>
        <source>Roll</source>
        <comment>the word over a die</comment>
        <translation>Tirar</translation>
    </message>
    <message>
        <source>Column of die %1</source>
        <translation>Columna del dado %1</translation>
    </message>
    <message>
        <source>Please select a scoring category.</source>
        <translation>Elige una categoría para anotar.</translation>
    </message>
    <message>
        <source>Ones....</source>
        <translation>Unos....</translation>
    </message>
    <message>
        <source>Score total of ones showing.</source>
        <translation>Suma de los unos.</translation>
    </message>
    <message>
        <source>Twos....</source>
        <translation>Doses...</translation>
    </message>
    <message>
        <source>Score total of twos showing.</source>
        <translation>Suma de los doses.</translation>
    </message>
    <message>
        <source>Threes..</source>
        <translation>Treses..</translation>
    </message>
    <message>
        <source>Score total of threes showing.</source>
        <translation>Suma de los treses.</translation>
    </message>
    <message>
        <source>Fours....</source>
        <translation>Cuatros</translation>
    </message>
    <message>
        <source>Score total of fours showing.</source>
        <translation>Suma de los cuatros.</translation>
    </message>
    <message>
        <source>Fives....</source>
        <translation>Cincos..</translation>
    </message>
    <message>
        <source>Score total of fives showing.</source>
        <translation>Suma de los cincos.</translation>
    </message>
    <message>
        <source>Sixes....</source>
        <translation>Seises..</translation>
    </message>
    <message>
        <source>Score total of sixes showing.</source>
        <translation>Suma de los seises.</translation>
    </message>
    <message>
        <source>Three of a Kind..</source>
        <translation>Trío....................</translation>
    </message>
    <message>
        <source>Three of one die type. (Score total of die showing.)</source>
        <translation>Tres dados iguales. (Suma de todos los dados.)</translation>
    </message>
    <message>
        <source>Four of a Kind....</source>
        <translation>Póker.................</translation>
    </message>
    <message>
        <source>Four of one die type. (Score total of die showing.)</source>
        <translation>Cuatro dados iguales. (Suma de todos los dados.)</translation>
    </message>
    <message>
        <source>Full House.........</source>
        <translation>Full....................</translation>
    </message>
    <message>
        <source>Two of a kind + three of a kind. (Score 25.)</source>
        <translation>Una pareja + un trío. (25 puntos.)</translation>
    </message>
    <message>
        <source>Small Straight....</source>
        <translation>Escalera corta...</translation>
    </message>
    <message>
        <source>1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)</source>
        <translation>1-2-3-4, 2-3-4-5 o 3-4-5-6. (30 puntos.)</translation>
    </message>
    <message>
        <source>Large Straight...</source>
        <translation>Escalera larga...</translation>
    </message>
    <message>
        <source>1-2-3-4-5 or 2-3-4-5-6. (Score 35.)</source>
        <translation>1-2-3-4-5 o 2-3-4-5-6. (35 puntos.)</translation>
    </message>
    <message>
        <source>Zarvo................</source>
        <translation>Zarvo................</translation>
    </message>
    <message>
        <source>Five of one die type. (Score 50.)</source>
        <translation>Cinco dados iguales. (50 puntos.)</translation>
    </message>
    <message>
        <source>Chance.............</source>
        <translation>Suerte...............</translation>
    </message>
    <message>
        <source>Score total of die showing.</source>
        <translation>Suma de todos los dados.</translation>
    </message>
    <message>
        <source>Left......</source>
        <translation>Izq.......</translation>
    </message>
    <message>
        <source>Right....</source>
        <translation>Der.......</translation>
    </message>
    <message>
        <source>Bonus..</source>
        <translation>Bonus..</translation>
    </message>
    <message>
        <source>Total....</source>
        <translation>Total....</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Nueva partida</translation>
    </message>
    <message>
        <source>Change &amp;Players...</source>
        <translation>Cambiar &amp;jugadores...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
    <message>
        <source>&amp;Remember Players</source>
        <translation>&amp;Recordar jugadores</translation>
    </message>
    <message>
        <source>Use &amp;Keyboard</source>
        <translation>Usar el &amp;teclado</translation>
    </message>
    <message>
        <source>Show &amp;Scoring Preview</source>
        <translation>Mostrar la &amp;vista previa de puntos</translation>
    </message>
    <message>
        <source>&amp;Animate Rolling</source>
        <translation>&amp;Animar las tiradas</translation>
    </message>
    <message>
        <source>Scoring Su&amp;mmary...</source>
        <translation>Resumen de &amp;puntos...</translation>
    </message>
    <message>
        <source>&amp;High Scores...</source>
        <translation>&amp;Mejores puntuaciones...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Contenido...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Acerca de Zarvo...</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Tirar</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source> Zarvo - New Game</source>
        <translation> Zarvo - Nueva partida</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Play another game?</source>
        <translation>¿Jugar otra partida?</translation>
    </message>
</context>
<context>
    <name>frmPlayerResults</name>
    <message>
        <source>Zarvo - Results</source>
        <translation>Zarvo - Resultados</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Promedio</translation>
    </message>
    <message>
        <source>Session:</source>
        <translation>Sesión:</translation>
    </message>
    <message>
        <source>All-time:</source>
        <translation>Histórico:</translation>
    </message>
</context>
<context>
    <name>frmPlayers</name>
    <message>
        <source>&lt; None &gt;</source>
        <translation>&lt; Ninguno &gt;</translation>
    </message>
    <message>
        <source>&lt; Player %1 &gt;</source>
        <translation>&lt; Jugador %1 &gt;</translation>
    </message>
    <message>
        <source> Zarvo - Change Players</source>
        <translation> Zarvo - Cambiar jugadores</translation>
    </message>
    <message>
        <source>Note: to be able to add or remove players, the file &apos;Zarvo.dat&apos; must exist in the same directory at the program file &apos;Zarvo.exe&apos;. </source>
        <translation>Nota: para poder añadir o eliminar jugadores, el archivo «Zarvo.dat» tiene que estar en la misma carpeta que el programa. </translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Play with the previously selected players.</source>
        <translation>Seguir con los jugadores de antes.</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Jugar</translation>
    </message>
    <message>
        <source>Play with the currently selected players.</source>
        <translation>Jugar con los jugadores elegidos ahora.</translation>
    </message>
    <message>
        <source>Selected Players:</source>
        <translation>Jugadores elegidos:</translation>
    </message>
    <message>
        <source>Player %1:</source>
        <translation>Jugador %1:</translation>
    </message>
    <message>
        <source>Select player #%1.</source>
        <translation>Elegir el jugador n.º %1.</translation>
    </message>
    <message>
        <source>Player %1</source>
        <translation>Jugador %1</translation>
    </message>
    <message>
        <source>Add/Remove Players</source>
        <translation>Añadir/eliminar jugadores</translation>
    </message>
    <message>
        <source>Select player to remove, or enter name to add.</source>
        <translation>Elegir un jugador para eliminarlo o escribir un nombre para añadirlo.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nombre del jugador</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add the player to the list.</source>
        <translation>Añadir el jugador a la lista.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Remove the selected player from the list.</source>
        <translation>Eliminar de la lista el jugador elegido.</translation>
    </message>
</context>
<context>
    <name>frmSummary</name>
    <message>
        <source>Zarvo - Scoring Summary</source>
        <translation>Zarvo - Resumen de puntos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Jugador:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Izq.:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Der.:</translation>
    </message>
    <message>
        <source>Bonus:</source>
        <translation>Bonus:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>Zarvos:</source>
        <translation>Zarvos:</translation>
    </message>
    <message>
        <source>Totals:</source>
        <translation>Totales:</translation>
    </message>
</context>
<context>
    <name>modCommon</name>
    <message>
        <source>Player %1</source>
        <translation>Jugador %1</translation>
    </message>
</context>
<context>
    <name>modDatabase</name>
    <message>
        <source>There was an error opening the<byte value="xd"/>
data file. Please make sure the file<byte value="xd"/>
&apos;Zarvo.dat&apos; exists in this directory.</source>
        <translation>Se produjo un error al abrir el archivo<byte value="xd"/>
de datos. Comprueba que el archivo<byte value="xd"/>
«Zarvo.dat» está en esta carpeta.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Error en el archivo de datos</translation>
    </message>
</context>
</TS>
