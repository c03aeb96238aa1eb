<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>FormatDate</name>
    <message>
        <source>Jan</source>
        <translation>jan.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>fev.</translation>
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
        <translation>mai.</translation>
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
        <translation>set.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>out.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dez.</translation>
    </message>
    <message>
        <source>%1. %2, %3</source>
        <translation>%2 de %1 de %3</translation>
    </message>
</context>
<context>
    <name>GameTable</name>
    <message>
        <source>No dice selected.</source>
        <translation>Nenhum dado selecionado.</translation>
    </message>
    <message>
        <source>Are you satisfied with the roll?</source>
        <translation>Quer ficar com essa jogada?</translation>
    </message>
    <message>
        <source>Zarvo - Confirm</source>
        <translation>Zarvo - Confirmar</translation>
    </message>
    <message>
        <source>Do you want to enable keyboard use?</source>
        <translation>Quer ativar o uso do teclado?</translation>
    </message>
    <message>
        <source>Zarvo - Enable Keyboard</source>
        <translation>Zarvo - Ativar teclado</translation>
    </message>
    <message>
        <source>%1&apos;s Scoreboard</source>
        <translation>Cartela de %1</translation>
    </message>
    <message>
        <source>%1&apos;s turn. Please roll.</source>
        <translation>Vez de %1. Pode rolar.</translation>
    </message>
    <message>
        <source>Scoring category</source>
        <translation>Categoria para marcar</translation>
    </message>
    <message>
        <source>Take a zero?</source>
        <translation>Marcar zero?</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Zarvo Help</source>
        <translation>Ajuda do Zarvo</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Conteúdo</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>Í&amp;ndice</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Pesquisar</translation>
    </message>
    <message>
        <source>There is no help to show: the help file &quot;%1&quot; could not be read.</source>
        <translation>Não há ajuda para mostrar: não foi possível ler o arquivo de ajuda “%1”.</translation>
    </message>
    <message>
        <source>&amp;Type the first letters of a keyword:</source>
        <translation>&amp;Digite o começo de uma palavra-chave:</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
</context>
<context>
    <name>HighScoreCheck</name>
    <message>
        <source>High scores will not be saved.</source>
        <translation>Os recordes não serão salvos.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Erro no arquivo de dados</translation>
    </message>
    <message>
        <source>There was an error opening the data file.</source>
        <translation>Ocorreu um erro ao abrir o arquivo de dados.</translation>
    </message>
    <message>
        <source>There was an error writing the data file.</source>
        <translation>Ocorreu um erro ao gravar o arquivo de dados.</translation>
    </message>
</context>
<context>
    <name>PlayerSelection</name>
    <message>
        <source>There is an error in the data file.</source>
        <translation>Há um erro no arquivo de dados.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Open Data File</source>
        <translation>Zarvo - Não foi possível abrir o arquivo de dados</translation>
    </message>
    <message>
        <source>Please enter a name to add.</source>
        <translation>Digite o nome a incluir.</translation>
    </message>
    <message>
        <source>Zarvo - Please Enter a Name</source>
        <translation>Zarvo - Digite um nome</translation>
    </message>
    <message>
        <source>Cannot add player; the player already exists.</source>
        <translation>Não é possível incluir o jogador; ele já existe.</translation>
    </message>
    <message>
        <source>Zarvo - Already Have Player</source>
        <translation>Zarvo - Jogador já existe</translation>
    </message>
    <message>
        <source>The information will not be saved.</source>
        <translation>As informações não serão salvas.</translation>
    </message>
    <message>
        <source>Player not found - cannot remove player.</source>
        <translation>Jogador não encontrado - não é possível excluí-lo.</translation>
    </message>
    <message>
        <source>Zarvo - Cannot Remove</source>
        <translation>Zarvo - Não é possível excluir</translation>
    </message>
    <message>
        <source>Cannot remove a player<byte value="xd"/>
that is currently selected.</source>
        <translation>Não é possível excluir um jogador<byte value="xd"/>
que está selecionado agora.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
this player? All saved information<byte value="xd"/>
for the player will be lost.</source>
        <translation>Tem certeza de que quer excluir<byte value="xd"/>
este jogador? Todas as informações<byte value="xd"/>
salvas dele serão perdidas.</translation>
    </message>
    <message>
        <source>Zarvo - Confirm Delete</source>
        <translation>Zarvo - Confirmar exclusão</translation>
    </message>
    <message>
        <source>The removal will not be saved.</source>
        <translation>A exclusão não será salva.</translation>
    </message>
</context>
<context>
    <name>PlayerStatistics</name>
    <message>
        <source>Congratulations, an all-time high!</source>
        <translation>Parabéns, novo recorde geral!</translation>
    </message>
    <message>
        <source>An all-time low! Better luck next time!</source>
        <translation>Pior marca geral! Mais sorte na próxima!</translation>
    </message>
    <message>
        <source>Congratulations, a new session high!</source>
        <translation>Parabéns, recorde da sessão!</translation>
    </message>
    <message>
        <source>A new session low! Better luck next time!</source>
        <translation>Pior marca da sessão! Mais sorte na próxima!</translation>
    </message>
    <message>
        <source>You bettered your overall average...</source>
        <translation>Sua média geral melhorou...</translation>
    </message>
    <message>
        <source>Brought your overall average down...</source>
        <translation>Sua média geral caiu...</translation>
    </message>
    <message>
        <source>Your overall average didn&apos;t change...</source>
        <translation>Sua média geral não mudou...</translation>
    </message>
    <message>
        <source>You bettered your session average...</source>
        <translation>Sua média da sessão melhorou...</translation>
    </message>
    <message>
        <source>Brought your session average down...</source>
        <translation>Sua média da sessão caiu...</translation>
    </message>
    <message>
        <source>Your session average didn&apos;t change...</source>
        <translation>Sua média da sessão não mudou...</translation>
    </message>
    <message>
        <source>%1&apos;s Results:</source>
        <translation>Resultados de %1:</translation>
    </message>
    <message>
        <source>%1 Scored: %2</source>
        <translation>%1 marcou: %2</translation>
    </message>
</context>
<context>
    <name>SpokenTable</name>
    <message>
        <source>Rolling</source>
        <translation>Rolando</translation>
    </message>
    <message>
        <source>one</source>
        <translation>um</translation>
    </message>
    <message>
        <source>two</source>
        <translation>dois</translation>
    </message>
    <message>
        <source>three</source>
        <translation>três</translation>
    </message>
    <message>
        <source>four</source>
        <translation>quatro</translation>
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
        <translation>Dado %1: no monte</translation>
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
        <translation>livre</translation>
    </message>
    <message>
        <source>open, would score nothing</source>
        <translation>livre, não daria pontos</translation>
    </message>
    <message>
        <source>open, would score %1 and a bonus of %2</source>
        <translation>livre, daria %1 e um bônus de %2</translation>
    </message>
    <message>
        <source>open, would score %1</source>
        <translation>livre, daria %1</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>No rolls left.</source>
        <translation>Nenhuma jogada restante.</translation>
    </message>
    <message>
        <source>One roll left.</source>
        <translation>Resta uma jogada.</translation>
    </message>
    <message>
        <source>Two rolls left.</source>
        <translation>Restam duas jogadas.</translation>
    </message>
    <message>
        <source>Rolled %1.</source>
        <translation>Você tirou %1.</translation>
    </message>
    <message>
        <source>%1: %2 and a bonus of %3 written.</source>
        <translation>%1: %2 e um bônus de %3 marcados.</translation>
    </message>
    <message>
        <source>%1: %2 written.</source>
        <translation>%1: %2 marcados.</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Five dice and a score card for one to eight players.</source>
        <translation>Cinco dados e uma cartela para um a oito jogadores.</translation>
    </message>
    <message>
        <source>Made by the Zarvo developers.</source>
        <translation>Feito pela equipe do Zarvo.</translation>
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
        <translation>Zarvo - Recorde</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Parabéns!</translation>
    </message>
    <message>
        <source>You got a High Score!</source>
        <translation>Você entrou nos recordes!</translation>
    </message>
    <message>
        <source>(Please enter your name as you want it to appear.)</source>
        <translation>(Digite seu nome como quer que ele apareça.)</translation>
    </message>
    <message>
        <source>Player Name:</source>
        <translation>Nome do jogador:</translation>
    </message>
    <message>
        <source>Enter your name.</source>
        <translation>Digite seu nome.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nome do jogador</translation>
    </message>
</context>
<context>
    <name>frmHighScores</name>
    <message>
        <source>Zarvo - High Scores</source>
        <translation>Zarvo - Recordes</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Jogador:</translation>
    </message>
    <message>
        <source>Score:</source>
        <translation>Pontos:</translation>
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
        <translation>Role os dados ou aceite a jogada.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Fica</translation>
    </message>
    <message>
        <source>Roll</source>
        <comment>the word over a die</comment>
        <translation>Rola</translation>
    </message>
    <message>
        <source>Column of die %1</source>
        <translation>Coluna do dado %1</translation>
    </message>
    <message>
        <source>Please select a scoring category.</source>
        <translation>Escolha uma categoria para marcar.</translation>
    </message>
    <message>
        <source>Ones....</source>
        <translation>Uns......</translation>
    </message>
    <message>
        <source>Score total of ones showing.</source>
        <translation>Soma dos uns.</translation>
    </message>
    <message>
        <source>Twos....</source>
        <translation>Dois.....</translation>
    </message>
    <message>
        <source>Score total of twos showing.</source>
        <translation>Soma dos dois.</translation>
    </message>
    <message>
        <source>Threes..</source>
        <translation>Três.....</translation>
    </message>
    <message>
        <source>Score total of threes showing.</source>
        <translation>Soma dos três.</translation>
    </message>
    <message>
        <source>Fours....</source>
        <translation>Quatros</translation>
    </message>
    <message>
        <source>Score total of fours showing.</source>
        <translation>Soma dos quatros.</translation>
    </message>
    <message>
        <source>Fives....</source>
        <translation>Cincos..</translation>
    </message>
    <message>
        <source>Score total of fives showing.</source>
        <translation>Soma dos cincos.</translation>
    </message>
    <message>
        <source>Sixes....</source>
        <translation>Seis.....</translation>
    </message>
    <message>
        <source>Score total of sixes showing.</source>
        <translation>Soma dos seis.</translation>
    </message>
    <message>
        <source>Three of a Kind..</source>
        <translation>Trinca................</translation>
    </message>
    <message>
        <source>Three of one die type. (Score total of die showing.)</source>
        <translation>Três dados iguais. (Soma de todos os dados.)</translation>
    </message>
    <message>
        <source>Four of a Kind....</source>
        <translation>Quadra..............</translation>
    </message>
    <message>
        <source>Four of one die type. (Score total of die showing.)</source>
        <translation>Quatro dados iguais. (Soma de todos os dados.)</translation>
    </message>
    <message>
        <source>Full House.........</source>
        <translation>Full House.........</translation>
    </message>
    <message>
        <source>Two of a kind + three of a kind. (Score 25.)</source>
        <translation>Um par + uma trinca. (25 pontos.)</translation>
    </message>
    <message>
        <source>Small Straight....</source>
        <translation>Sequência baixa</translation>
    </message>
    <message>
        <source>1-2-3-4, 2-3-4-5, or 3-4-5-6. (Score 30.)</source>
        <translation>1-2-3-4, 2-3-4-5 ou 3-4-5-6. (30 pontos.)</translation>
    </message>
    <message>
        <source>Large Straight...</source>
        <translation>Sequência alta...</translation>
    </message>
    <message>
        <source>1-2-3-4-5 or 2-3-4-5-6. (Score 35.)</source>
        <translation>1-2-3-4-5 ou 2-3-4-5-6. (35 pontos.)</translation>
    </message>
    <message>
        <source>Zarvo................</source>
        <translation>Zarvo................</translation>
    </message>
    <message>
        <source>Five of one die type. (Score 50.)</source>
        <translation>Cinco dados iguais. (50 pontos.)</translation>
    </message>
    <message>
        <source>Chance.............</source>
        <translation>Chance.............</translation>
    </message>
    <message>
        <source>Score total of die showing.</source>
        <translation>Soma de todos os dados.</translation>
    </message>
    <message>
        <source>Left......</source>
        <translation>Esq......</translation>
    </message>
    <message>
        <source>Right....</source>
        <translation>Dir........</translation>
    </message>
    <message>
        <source>Bonus..</source>
        <translation>Bônus..</translation>
    </message>
    <message>
        <source>Total....</source>
        <translation>Total....</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Novo jogo</translation>
    </message>
    <message>
        <source>Change &amp;Players...</source>
        <translation>&amp;Trocar jogadores...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opções</translation>
    </message>
    <message>
        <source>&amp;Remember Players</source>
        <translation>&amp;Lembrar jogadores</translation>
    </message>
    <message>
        <source>Use &amp;Keyboard</source>
        <translation>Usar &amp;teclado</translation>
    </message>
    <message>
        <source>Show &amp;Scoring Preview</source>
        <translation>&amp;Mostrar prévia dos pontos</translation>
    </message>
    <message>
        <source>&amp;Animate Rolling</source>
        <translation>&amp;Animar os dados</translation>
    </message>
    <message>
        <source>Scoring Su&amp;mmary...</source>
        <translation>&amp;Resumo dos pontos...</translation>
    </message>
    <message>
        <source>&amp;High Scores...</source>
        <translation>Re&amp;cordes...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Conteúdo...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Sobre o Zarvo...</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Aceitar</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolar</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source> Zarvo - New Game</source>
        <translation> Zarvo - Novo jogo</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Play another game?</source>
        <translation>Jogar mais uma partida?</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Maior</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Menor</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Média</translation>
    </message>
    <message>
        <source>Session:</source>
        <translation>Sessão:</translation>
    </message>
    <message>
        <source>All-time:</source>
        <translation>Geral:</translation>
    </message>
</context>
<context>
    <name>frmPlayers</name>
    <message>
        <source>&lt; None &gt;</source>
        <translation>&lt; Nenhum &gt;</translation>
    </message>
    <message>
        <source>&lt; Player %1 &gt;</source>
        <translation>&lt; Jogador %1 &gt;</translation>
    </message>
    <message>
        <source> Zarvo - Change Players</source>
        <translation> Zarvo - Trocar jogadores</translation>
    </message>
    <message>
        <source>Note: to be able to add or remove players, the file &apos;Zarvo.dat&apos; must exist in the same directory at the program file &apos;Zarvo.exe&apos;. </source>
        <translation>Observação: para incluir ou excluir jogadores, o arquivo “Zarvo.dat” precisa estar na mesma pasta do programa. </translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Play with the previously selected players.</source>
        <translation>Jogar com os jogadores escolhidos antes.</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Jogar</translation>
    </message>
    <message>
        <source>Play with the currently selected players.</source>
        <translation>Jogar com os jogadores escolhidos agora.</translation>
    </message>
    <message>
        <source>Selected Players:</source>
        <translation>Jogadores escolhidos:</translation>
    </message>
    <message>
        <source>Player %1:</source>
        <translation>Jogador %1:</translation>
    </message>
    <message>
        <source>Select player #%1.</source>
        <translation>Escolha o jogador nº %1.</translation>
    </message>
    <message>
        <source>Player %1</source>
        <translation>Jogador %1</translation>
    </message>
    <message>
        <source>Add/Remove Players</source>
        <translation>Incluir/excluir jogadores</translation>
    </message>
    <message>
        <source>Select player to remove, or enter name to add.</source>
        <translation>Escolha um jogador para excluir ou digite um nome para incluir.</translation>
    </message>
    <message>
        <source>Player name</source>
        <translation>Nome do jogador</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Incluir</translation>
    </message>
    <message>
        <source>Add the player to the list.</source>
        <translation>Incluir o jogador na lista.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Remove the selected player from the list.</source>
        <translation>Excluir da lista o jogador escolhido.</translation>
    </message>
</context>
<context>
    <name>frmSummary</name>
    <message>
        <source>Zarvo - Scoring Summary</source>
        <translation>Zarvo - Resumo dos pontos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Player:</source>
        <translation>Jogador:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Esq.:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Dir.:</translation>
    </message>
    <message>
        <source>Bonus:</source>
        <translation>Bônus:</translation>
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
        <translation>Totais:</translation>
    </message>
</context>
<context>
    <name>modCommon</name>
    <message>
        <source>Player %1</source>
        <translation>Jogador %1</translation>
    </message>
</context>
<context>
    <name>modDatabase</name>
    <message>
        <source>There was an error opening the<byte value="xd"/>
data file. Please make sure the file<byte value="xd"/>
&apos;Zarvo.dat&apos; exists in this directory.</source>
        <translation>Ocorreu um erro ao abrir o arquivo<byte value="xd"/>
de dados. Verifique se o arquivo<byte value="xd"/>
“Zarvo.dat” está nesta pasta.</translation>
    </message>
    <message>
        <source>Zarvo - Data File Error</source>
        <translation>Zarvo - Erro no arquivo de dados</translation>
    </message>
</context>
</TS>
