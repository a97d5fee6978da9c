#include "HostText.h"

#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <unordered_map>
#include <utility>

namespace {

// Each host text in English, with its Portuguese.
const std::unordered_map<std::string, std::string>& portuguese() {
  static const std::unordered_map<std::string, std::string> table = {
      {"check scenarios before running them", "verifica cenários antes de executá-los"},
      {"scenario \"{1}\": no findings", "cenário \"{1}\": nenhum achado"},
      {"scenario \"{1}\": {2} finding(s)", "cenário \"{1}\": {2} achado(s)"},
      {"the metrics of several scenarios side by side",
       "as métricas de vários cenários lado a lado"},
      {"scenario \"{1}\": stored run {2}", "cenário \"{1}\": execução gravada {2}"},
      {" (warning: the project's inputs were saved after it)",
       " (aviso: os dados de entrada do projeto foram gravados depois dela)"},
      {"cannot make the folder", "não foi possível criar a pasta"},
      {"build the São Francisco demo project", "monta o projeto de demonstração do São Francisco"},
      {"serve the projects of a folder over TCP", "serve os projetos de uma pasta por TCP"},
      {"not a folder", "não é uma pasta"},
      {"--port must be at most 65535", "--port deve ser no máximo 65535"},
      {"--workers must be at most 64", "--workers deve ser no máximo 64"},
      {"serving {1} on {2} port {3} with {4} worker(s); changes {5}",
       "servindo {1} em {2} porta {3} com {4} trabalhador(es); alterações {5}"},
      {"allowed", "permitidas"},
      {"refused", "recusadas"},
      {"stopped after the requests in flight", "parado após as requisições em curso"},
      {"update a reservoir's input series or curve from the web service",
       "atualiza as séries de entrada ou a curva de um reservatório pelo serviço web"},
      {"give one of --series and --cav", "dê uma das opções --series e --cav"},
      {"scenario \"{1}\" has no reservoir named \"{2}\"",
       "o cenário \"{1}\" não tem reservatório chamado \"{2}\""},
      {"{1}: \"{2}\" updated with {3} value(s)", "{1}: \"{2}\" atualizada com {3} valor(es)"},
      {"{1}: the web service has no \"{2}\"", "{1}: o serviço web não tem \"{2}\""},
      {"{1}: the web service has no level-area-volume table",
       "{1}: o serviço web não tem tabela cota-área-volume"},
      {"{1}: level-area-volume table replaced by {2} row(s)",
       "{1}: tabela cota-área-volume substituída por {2} linha(s)"},
      {"attach shapefile layers to a scenario and place its nodes from a point layer",
       "anexa camadas shapefile a um cenário e posiciona seus nós por uma camada de pontos"},
      {"option --layer-epsg: EPSG:{1} is not a geographic or projected coordinate system",
       "opção --layer-epsg: EPSG:{1} não é um sistema de coordenadas geográfico ou projetado"},
      {"option --name-field: none of the files is a point layer",
       "opção --name-field: nenhum dos arquivos é uma camada de pontos"},
      {"{1}: placed at {2}", "{1}: posicionado em {2}"},
      {"nodes no point names, left where they were: {1}",
       "nós que nenhum ponto nomeia, deixados onde estavam: {1}"},
      {"names of points without a node, ignored: {1}", "nomes de pontos sem nó, ignorados: {1}"},
      {"point layer", "camada de pontos"},
      {"line layer", "camada de linhas"},
      {"polygon layer", "camada de polígonos"},
      {"{1}: {2}, {3} feature(s), {4}; {5}", "{1}: {2}, {3} feição(ões), {4}; {5}"},
      {"attached", "anexada"},
      {"already attached", "já anexada"},
      {"{1}: could not be written; nothing was changed",
       "{1}: não pôde ser escrito; nada foi alterado"},
      {"scenario \"{1}\" saved in {2}", "cenário \"{1}\" gravado em {2}"},
      {"copy input series between scenarios and projects",
       "copia séries de entrada entre cenários e projetos"},
      {"option --series: \"{1}\" is not an input series kind ({2})",
       "opção --series: \"{1}\" não é um tipo de série de entrada ({2})"},
      {"--from and --to name the same scenario \"{1}\"",
       "--from e --to indicam o mesmo cenário \"{1}\""},
      {"the project database has no series type \"{1}\" in {2}",
       "o banco de dados do projeto não tem o tipo de série \"{1}\" em {2}"},
      {"copied \"{1}\": {2}", "copiado \"{1}\": {2}"},
      {"skipped \"{1}\": {2} in \"{3}\" but {4} in \"{5}\"",
       "ignorado \"{1}\": {2} em \"{3}\", mas {4} em \"{5}\""},
      {"not in scenario \"{1}\": {2}", "ausentes do cenário \"{1}\": {2}"},
      {"{1} of {2} element(s) copied from \"{3}\" into \"{4}\": {5} of another kind, {6} "
       "without a namesake, {7} with nothing to copy",
       "{1} de {2} elemento(s) copiado(s) de \"{3}\" para \"{4}\": {5} de outro tipo, {6} sem "
       "homônimo, {7} sem nada a copiar"},
      {"warning: the stored results of scenario \"{1}\" were computed from its former inputs; "
       "run it again",
       "aviso: os resultados gravados do cenário \"{1}\" foram calculados com suas entradas "
       "anteriores; execute-o de novo"},
      {"saving", "gravando"},
      {"demo cancelled; nothing was written", "demonstração cancelada; nada foi escrito"},
      {"demo project written to {1}", "projeto de demonstração escrito em {1}"},
      {"cannot make the output folder", "não foi possível criar a pasta de saída"},
      {"write results, inputs, curves, the graph or the map as files",
       "escreve resultados, entradas, curvas, o grafo ou o mapa em arquivos"},
      {"nothing to export named \"{1}\" (csv, inputs, cav, dot or kml)",
       "nada a exportar com o nome \"{1}\" (csv, inputs, cav, dot ou kml)"},
      {"is a folder, not a file", "é uma pasta, não um arquivo"},
      {"graph written to {1}", "grafo escrito em {1}"},
      {"map written to {1}", "mapa escrito em {1}"},
      {"{1} file(s) written under {2}", "{1} arquivo(s) escrito(s) em {2}"},
      {"make a synthetic project of a chosen size",
       "cria um projeto sintético do tamanho escolhido"},
      {"could not be written", "não pôde ser escrito"},
      {"{1}: could not be written; the {2} is not stored",
       "{1}: não pôde ser escrito; o resultado ({2}) não foi gravado"},
      {"curve found", "curva encontrada"},
      {"front found", "frente encontrada"},
      {"scenario {1}", "cenário {1}"},
      {"the inflow record starts in {1}, after {2}",
       "o registro de vazões começa em {1}, depois de {2}"},
      {"the rule simulation of the demo did not run: {1}",
       "a simulação por regras da demonstração não foi executada: {1}"},
      {"cancelled, nothing written", "cancelado, nada foi escrito"},
      {"generated {1}: {2} reservoirs, {3} demands, {4} months, ",
       "gerado {1}: {2} reservatórios, {3} demandas, {4} meses, "},
      {"rule mode, ", "modo regras, "},
      {"priority mode, ", "modo prioridades, "},
      {"chain, ", "cadeia, "},
      {"priorities of their own, ", "prioridades próprias, "},
      {"seed {1}", "semente {1}"},
      {"kind", "tipo"},
      {"name", "nome"},
      {"id", "id"},
      {"capacity hm³", "capacidade hm³"},
      {"minimum hm³", "mínimo hm³"},
      {"initial hm³", "inicial hm³"},
      {"mean demand m³/s", "demanda média m³/s"},
      {"priority", "prioridade"},
      {"rule", "regra"},
      {"summarise a project and its scenarios", "resume um projeto e seus cenários"},
      {"Elements of {1}:", "Elementos de {1}:"},
      {"unknown command \"{1}\"; try 'kova --help'",
       "comando desconhecido \"{1}\"; tente 'kova --help'"},
      {"try 'kova {1} --help'", "tente 'kova {1} --help'"},
      {"unexpected failure", "falha inesperada"},
      {"runs and inspects water-resource system projects (P.sjson with P.sjson.sqlite)",
       "executa e examina projetos de sistemas de recursos hídricos (P.sjson com P.sjson.sqlite)"},
      {"Usage: kova <command> [arguments] [options] [--quiet]\n"
       "       kova --version\n"
       "\n"
       "Commands:",
       "Uso: kova <comando> [argumentos] [opções] [--quiet]\n"
       "     kova --version\n"
       "\n"
       "Comandos:"},
      {"'kova <command> --help' tells more about a command. --quiet, with any command,\n"
       "prints nothing but results and errors.\n"
       "Exit status: 0 done, 1 a scenario was refused or did not finish, 2 a usage or file\n"
       "error, 3 cancelled.\n",
       "'kova <comando> --help' conta mais sobre um comando. --quiet, com qualquer comando, não\n"
       "mostra nada além de resultados e erros.\n"
       "Código de saída: 0 feito, 1 um cenário foi recusado ou não terminou, 2 um erro de uso\n"
       "ou de arquivo, 3 cancelado.\n"},
      {"Usage: {1}", "Uso: {1}"},
      {"performance metrics of a stored run", "métricas de desempenho de uma execução gravada"},
      {"warning: the project's inputs were saved after the stored run of {1}; run the scenario "
       "again for results that answer to them",
       "aviso: as entradas do projeto foram gravadas depois da execução gravada de {1}; execute o "
       "cenário de novo para ter resultados que correspondam a elas"},
      {"create a blank priority project", "cria um projeto de prioridades em branco"},
      {"new project written to {1}", "novo projeto escrito em {1}"},
      {"the general report of a scenario, or report expressions over its stored run",
       "o relatório geral de um cenário, ou expressões de relatório sobre sua execução gravada"},
      {"expression \"{1}\": {2}", "expressão \"{1}\": {2}"},
      {"option --{1} needs --expression or --expressions",
       "a opção --{1} precisa de --expression ou --expressions"},
      {"option --expressions: \"{1}\" holds no expression",
       "opção --expressions: \"{1}\" não contém expressão alguma"},
      {"run scenarios and store their results", "executa cenários e grava seus resultados"},
      {"opening", "abrindo"},
      {"results not stored, saving was cancelled",
       "resultados não gravados, a gravação foi cancelada"},
      {"{1} CSV file(s) written under {2}", "{1} arquivo(s) CSV escrito(s) em {2}"},
      {"copy a project under another name", "copia um projeto com outro nome"},
      {"save-as cancelled; {1} is as it was", "save-as cancelado; {1} está como estava"},
      {"saved as {1}", "gravado como {1}"},
      {"one element's input and result series of a stored run",
       "as séries de entrada e de resultado de um elemento numa execução gravada"},
      {"warning: the project's inputs were saved after the stored run of {1}",
       "aviso: as entradas do projeto foram gravadas depois da execução gravada de {1}"},
      {"the stored results of scenario {1} do not cover its dates ({2}); run it again",
       "os resultados gravados do cenário {1} não cobrem suas datas ({2}); execute-o de novo"},
      {"element {1}, {2}, {3}", "elemento {1}, {2}, {3}"},
      {"the stored front of a rule optimisation", "a frente gravada de uma otimização de regras"},
      {"scenario \"{1}\" has no stored front; run it with 'kova run'",
       "o cenário \"{1}\" não tem frente gravada; execute-o com 'kova run'"},
      {"scenario \"{1}\" is a \"{2}\" scenario, not a rule optimisation (\"Otimizador de regras\")",
       "o cenário \"{1}\" é um cenário \"{2}\", não uma otimização de regras (\"Otimizador de "
       "regras\")"},
      {"the stored guarantee curve of a scenario", "a curva de garantia gravada de um cenário"},
      {"scenario \"{1}\" has no stored curve; run it with 'kova run'",
       "o cenário \"{1}\" não tem curva gravada; execute-o com 'kova run'"},
      {"scenario \"{1}\" is a \"{2}\" scenario, not a guarantee curve (\"Curva de garantia\" or "
       "\"Curva de garantia do sistema\")",
       "o cenário \"{1}\" é um cenário \"{2}\", não uma curva de garantia (\"Curva de garantia\" "
       "ou \"Curva de garantia do sistema\")"},
      {"no release reaches the guarantee {1} %",
       "nenhuma vazão liberada alcança a garantia de {1} %"},
      {"reservoir \"{1}\" failed a level", "o reservatório \"{1}\" falhou em um nível"},
      {"make the rule scenario that follows the stored run of a scenario by priorities",
       "cria o cenário de regras que segue a execução gravada de um cenário por prioridades"},
      {"option --kind: \"{1}\" is not one of knn, tree, forest, series",
       "opção --kind: \"{1}\" não é knn, tree, forest nem series"},
      {"scenario \"{1}\" is a \"{2}\" scenario, not one by priorities (\"Otimizador por "
       "prioridades\")",
       "o cenário \"{1}\" é um cenário \"{2}\", não um cenário por prioridades (\"Otimizador "
       "por prioridades\")"},
      {"{1}: made from the stored run of \"{2}\" and saved",
       "{1}: criado a partir da execução gravada de \"{2}\" e gravado"},
      {"mean squared error of each model over five folds of its entries ((m³/s)²):",
       "erro quadrático médio de cada modelo em cinco partições de seus dados ((m³/s)²):"},
      {"reservoir", "reservatório"},
      {"entries", "entradas"},
      {"options --entries and --best-entries exclude each other",
       "as opções --entries e --best-entries se excluem"},
      {"test", "teste"},
      {"train", "treino"},
      {"make the rule scenario of one row of a front or of a guarantee curve",
       "cria o cenário de regras de uma linha de uma frente ou de uma curva de garantia"},
      {"scenario \"{1}\" is a system guarantee curve, which keeps the flow of its out reservoir "
       "but not the rules upstream that gave it: no rule scenario is made from it",
       "o cenário \"{1}\" é uma curva de garantia do sistema, que guarda a vazão de seu "
       "reservatório de saída mas não as regras a montante que a deram: nenhum cenário de regras "
       "é criado a partir dela"},
      {"option --row: scenario \"{1}\" has {2} row(s) in its stored front",
       "opção --row: o cenário \"{1}\" tem {2} linha(s) em sua frente gravada"},
      {"option --row: scenario \"{1}\" has {2} row(s) in its stored curve",
       "opção --row: o cenário \"{1}\" tem {2} linha(s) em sua curva gravada"},
      {", rows 0 to {1}", ", linhas de 0 a {1}"},
      {"the project already has a scenario named \"{1}\"",
       "o projeto já tem um cenário chamado \"{1}\""},
      {"{1}: made from row {2} of \"{3}\" and saved",
       "{1}: criado a partir da linha {2} de \"{3}\" e gravado"},
      {"option --{1} takes no value", "a opção --{1} não aceita valor"},
      {"option --{1} needs a value", "a opção --{1} precisa de um valor"},
      {"option --{1} given twice", "a opção --{1} foi dada duas vezes"},
      {"option --{1} is required", "a opção --{1} é obrigatória"},
      {"make a scenario of another kind from a scenario",
       "cria um cenário de outro tipo a partir de um cenário"},
      {"option --to: no kind named \"{1}\" (rule, priority, optimisation, guarantee or "
       "system-guarantee)",
       "opção --to: não há tipo chamado \"{1}\" (rule, priority, optimisation, guarantee ou "
       "system-guarantee)"},
      {"scenario \"{1}\" is already of kind {2}", "o cenário \"{1}\" já é do tipo {2}"},
      {"scenario \"{1}\" has no stored run to read: it runs first, to give its releases and "
       "shares",
       "o cenário \"{1}\" não tem execução gravada para ler: é executado antes, para dar suas "
       "liberações e repartições"},
      {"{1}: made from \"{2}\" as a scenario of kind {3} and saved",
       "{1}: criado a partir de \"{2}\" como cenário do tipo {3} e gravado"},
      {"option --{1}: \"{2}\" is not a whole number of at least {3}",
       "opção --{1}: \"{2}\" não é um número inteiro de pelo menos {3}"},
      {"unknown option {1}", "opção desconhecida {1}"},
      {"expected 1 argument, got {1}", "esperava 1 argumento, recebeu {1}"},
      {"expected {1} arguments, got {2}", "esperava {1} argumentos, recebeu {2}"},
      {"unexpected argument \"{1}\"", "argumento inesperado \"{1}\""},
      {"no such project file", "arquivo de projeto inexistente"},
      {"not a project file", "não é um arquivo de projeto"},
      {"cannot be read", "não pode ser lido"},
      {"cannot be written (no write permission)",
       "não pode ser escrito (sem permissão de escrita)"},
      {"the project has no scenario", "o projeto não tem cenário algum"},
      {"no scenario named {1} (scenarios: {2})", "nenhum cenário chamado {1} (cenários: {2})"},
      {"none", "nenhum"},
      {"scenario {1} has no stored results (run it first: kova run {2} --scenario {1})",
       "o cenário {1} não tem resultados gravados (execute-o antes: kova run {2} --scenario {1})"},
      {"option --elements: \"{1}\" is not one of all, reservoirs, demands",
       "opção --elements: \"{1}\" não é all, reservoirs nem demands"},
      {"option --scenario: name two scenarios or more",
       "opção --scenario: nomeie dois cenários ou mais"},
      {"option --window: scenario \"{1}\" has {2} window(s)",
       "opção --window: o cenário \"{1}\" tem {2} janela(s)"},
      {"options --window and --windows exclude each other",
       "as opções --window e --windows excluem uma à outra"},
      {"option --windows: \"{1}\" is not all", "opção --windows: \"{1}\" não é all"},
      {"option --format: \"{1}\" is not one of table, csv, json",
       "opção --format: \"{1}\" não é table, csv nem json"},
      {"scenario \"{1}\" has no element named \"{2}\"",
       "o cenário \"{1}\" não tem elemento chamado \"{2}\""},
      {"option --kind: element \"{1}\" has no such series",
       "opção --kind: o elemento \"{1}\" não tem essa série"},
      {"scenario {1} is a guarantee curve, which keeps its curve and no results: see kova "
       "curve {2} --scenario {1}",
       "o cenário {1} é uma curva de garantia, que guarda sua curva e nenhum resultado: veja kova "
       "curve {2} --scenario {1}"},
      {"scenario \"{1}\" has no stored results", "o cenário \"{1}\" não tem resultados gravados"},
      {"option --layout: \"{1}\" is neither tree nor chain",
       "opção --layout: \"{1}\" não é tree nem chain"},
      {"option --mode: \"{1}\" is neither rule nor priority",
       "opção --mode: \"{1}\" não é rule nem priority"},
      {"option --mode: a chain is operated by priorities",
       "opção --mode: uma cadeia é operada por prioridades"},
      {"option --own-priorities: only with --layout chain",
       "opção --own-priorities: só com --layout chain"},
      {"option --own-priorities: at most 98 reservoirs and demands",
       "opção --own-priorities: no máximo 98 reservatórios e demandas"},
      {"option --{1}: {2} is more than {3}", "opção --{1}: {2} é mais que {3}"},
      {"--solver: unknown solver \"{1}\", expected {2}",
       "--solver: resolvedor desconhecido \"{1}\", esperado {2}"},
      {"already exists (choose another name)", "já existe (escolha outro nome)"},
      {"no such folder", "pasta inexistente"},
      {"could not be put in place ({1})", "não pôde ser posto no lugar ({1})"},
      {"could not be written completely (disk full?)",
       "não pôde ser escrito por inteiro (disco cheio?)"},
      {"empty file", "arquivo vazio"},
      {"line {1} has {2} fields, the header {3}", "a linha {1} tem {2} campos, o cabeçalho {3}"},
      {"no column \"{1}\"", "nenhuma coluna \"{1}\""},
      {"\"{1}\" in column \"{2}\", line {3}, is not a number",
       "\"{1}\" na coluna \"{2}\", linha {3}, não é um número"},
      {"no line for \"{1}\"", "nenhuma linha para \"{1}\""},
      {"{1}: no feasible allocation on {2}", "{1}: nenhuma alocação viável em {2}"},
      {"date", "data"},
      {"direction", "sentido"},
      {"value", "valor"},
      {"unit", "unidade"},
      {"input", "entrada"},
      {"result", "resultado"},
      {"element", "elemento"},
      {"metric", "métrica"},
      {"row", "linha"},
      {"guarantee", "garantia"},
      {"scenario: {1}", "cenário: {1}"},
      {"windows: {1}, {2} to {3}", "janelas: {1}, de {2} a {3}"},
      {"{1} of {2}", "{1} de {2}"},
      {"all {1}", "todas as {1}"},
      {"stored run: {1}", "execução gravada: {1}"},
      {"warning: the project's inputs were saved after this run",
       "aviso: as entradas do projeto foram gravadas depois desta execução"},
  };
  return table;
}

// The long help of each command, for --help, in English and in Portuguese.
const std::unordered_map<std::string, std::pair<std::string, std::string>>& helps() {
  static const std::unordered_map<std::string, std::pair<std::string, std::string>> table = {
      {"check",
       {"Runs the checks of the named scenarios (all when none is named) and prints every\n"
        "finding as its message followed by the place it names (element, series, date and\n"
        "value, or the scenario). Exit status 1 when there is any finding.\n",
        "Executa as verificações dos cenários nomeados (todos quando nenhum é nomeado) e mostra\n"
        "cada achado como sua mensagem seguida do lugar que ela indica (elemento, série, data e\n"
        "valor, ou o cenário). Código de saída 1 quando há algum achado.\n"}},
      {"compare",
       {"Computes the metrics of each named scenario from its latest stored run, in window N\n"
        "(default 1), and prints one line per element and metric: the element, the metric,\n"
        "one column per scenario and, for each scenario after the first, its difference to\n"
        "the first (\"B - A\"). Elements are those of the first scenario, matched by name;\n"
        "drains are left out unless --elements all. A figure without meaning is \"-\" (empty\n"
        "in csv, null in json). csv separates fields by ','; json is an array of objects with\n"
        "the same headings as keys.\n",
        "Calcula as métricas de cada cenário nomeado a partir de sua última execução gravada, na\n"
        "janela N (padrão 1), e mostra uma linha por elemento e métrica: o elemento, a métrica,\n"
        "uma coluna por cenário e, para cada cenário depois do primeiro, sua diferença para o\n"
        "primeiro (\"B - A\"). Os elementos são os do primeiro cenário, casados pelo nome; os\n"
        "sumidouros ficam de fora salvo com --elements all. Um número sem sentido é \"-\" (vazio\n"
        "em csv, null em json). csv separa os campos por ','; json é uma lista de objetos com\n"
        "os mesmos cabeçalhos como chaves.\n"}},
      {"demo",
       {"Builds DIR/sao_francisco.sjson (with its database) from the public data in FOLDER\n"
        "(default: the examples/sao_francisco folder of the source tree): the cascade from\n"
        "Retiro Baixo to Moxotó on the monthly natural inflows of 1931-2019, with a rule\n"
        "simulation, a priority operation and yearly windows from today's storage. --until\n"
        "YEAR ends the record in December of YEAR, for a quicker try.\n",
        "Monta DIR/sao_francisco.sjson (com seu banco de dados) a partir dos dados públicos em\n"
        "FOLDER (padrão: a pasta examples/sao_francisco do código-fonte): a cascata de Retiro\n"
        "Baixo a Moxotó sobre as vazões naturais mensais de 1931-2019, com uma simulação por\n"
        "regras, uma operação por prioridades e janelas anuais a partir do armazenamento atual.\n"
        "--until YEAR termina o registro em dezembro de YEAR, para um teste mais rápido.\n"}},
      {"serve",
       {"Serves the projects of DIR to TLV clients over TCP on ADDR (default 127.0.0.1, this\n"
        "machine only) and port N (default 7040; 0 takes a free one), with K workers (default\n"
        "1, at most 64). A project is DIR/P.sjson, or DIR/personalized/CODE/P.sjson for a\n"
        "request with a code; names that would lead out of DIR are refused. Requests that\n"
        "change a series are refused unless --allow-changes. A frame above 64 MiB, cut short\n"
        "or not whole within 10 s ends its connection only. The workers' log goes to the\n"
        "standard output. SIGINT or SIGTERM stops the service after the requests in flight.\n",
        "Serve os projetos de DIR a clientes TLV por TCP em ADDR (padrão 127.0.0.1, só esta\n"
        "máquina) e porta N (padrão 7040; 0 toma uma livre), com K trabalhadores (padrão 1, no\n"
        "máximo 64). Um projeto é DIR/P.sjson, ou DIR/personalized/CODE/P.sjson para uma\n"
        "requisição com código; nomes que levariam para fora de DIR são recusados. Requisições\n"
        "que alteram uma série são recusadas salvo com --allow-changes. Um quadro acima de\n"
        "64 MiB, interrompido ou incompleto após 10 s encerra apenas sua conexão. O registro dos\n"
        "trabalhadores vai para a saída padrão. SIGINT ou SIGTERM para o serviço após as\n"
        "requisições em curso.\n"}},
      {"update",
       {"Asks the web service of the project's configuration (its host and port) for the\n"
        "reservoir NAME of scenario NAME: with --series, each input series the service keeps,\n"
        "stored in the project database; with --cav, the level-area-volume table, which\n"
        "replaces the reservoir's. Prints one line per series or table. Exit status 1 when\n"
        "nothing was updated.\n",
        "Pede ao serviço web da configuração do projeto (seu host e porta) o reservatório NAME\n"
        "do cenário NAME: com --series, cada série de entrada que o serviço mantém, gravada no\n"
        "banco de dados do projeto; com --cav, a tabela cota-área-volume, que substitui a do\n"
        "reservatório. Mostra uma linha por série ou tabela. Código de saída 1 quando nada foi\n"
        "atualizado.\n"}},
      {"import-shapes",
       {"Reads each FILE.shp with its .shx index, its .dbf table and its .prj, whose coordinate\n"
        "system must be one of the EPSG register: geographic (WGS 84, SIRGAS 2000...) or\n"
        "projected (the UTM zones of both hemispheres...). --layer-epsg CODE gives the files'\n"
        "system instead, for files without a .prj or with one that is not recognised. Every file\n"
        "is read first: a missing, damaged or unrecognised file changes nothing.\n"
        "Each file is attached to scenario NAME as a layer, by its absolute path, once.\n"
        "--name-field FIELD places the nodes: a node whose name a point of a point layer has in\n"
        "column FIELD moves to that point, converted into the scenario's coordinates (longitude\n"
        "and latitude of SIRGAS 2000, EPSG:4674). Nodes that no point names stay where they were\n"
        "and names without a node are ignored; both are listed. A name on two points is an error.\n"
        "The project file is then saved; its database is not touched.\n",
        "Lê cada FILE.shp com seu índice .shx, sua tabela .dbf e seu .prj, cujo sistema de\n"
        "coordenadas deve ser um do registro EPSG: geográfico (WGS 84, SIRGAS 2000...) ou\n"
        "projetado (as zonas UTM dos dois hemisférios...). --layer-epsg CODE dá em vez disso o\n"
        "sistema dos arquivos, para arquivos sem .prj ou com um que não é reconhecido. Todos os\n"
        "arquivos são lidos antes de qualquer mudança: um arquivo ausente, danificado ou não\n"
        "reconhecido não muda nada. Cada arquivo é anexado ao cenário NAME como camada, por seu\n"
        "caminho absoluto, uma só vez.\n"
        "--name-field FIELD posiciona os nós: um nó cujo nome um ponto de uma camada de pontos\n"
        "tem na coluna FIELD vai para esse ponto, convertido para as coordenadas do cenário\n"
        "(longitude e latitude do SIRGAS 2000, EPSG:4674). Os nós que nenhum ponto nomeia ficam\n"
        "onde estavam e os nomes sem nó são ignorados; ambos são listados. Um nome em dois pontos\n"
        "é um erro. O arquivo do projeto é então gravado; seu banco de dados não é tocado.\n"}},
      {"copy-series",
       {"Copies the input series of the elements of scenario --from into the elements of the\n"
        "same name in scenario --to: of the same project or, with --project, of project Q, into\n"
        "which they go while P is only read. --series keeps the kinds of that name\n"
        "(\"Precipitação\") or number (0), and may be repeated; the input kinds are\n"
        "0 Precipitação, 1 Evaporação, 2 Vazão natural incremental, 3 Volume meta, 5 Demanda,\n"
        "7 Perda em trânsito and 42 Limite de trecho. Without it, every kind that holds values.\n"
        "A copied series replaces the target's values date for date and is stored in the\n"
        "target's database. An element whose namesake is of another kind (a reservoir named like\n"
        "a junction; demands of any use are one kind, and so are links) is skipped, and so is\n"
        "one whose series of the kinds asked hold no value. The target's stored results are\n"
        "kept, with a warning that they answer to its former inputs. Prints one line per element\n"
        "copied or of another kind, the elements without a namesake, then a summary that counts\n"
        "them and those with nothing to copy.\n"
        "Exit status: 0 copied, 1 nothing copied, 2 usage or file error.\n",
        "Copia as séries de entrada dos elementos do cenário --from para os elementos de mesmo\n"
        "nome do cenário --to: do mesmo projeto ou, com --project, do projeto Q, para o qual vão\n"
        "enquanto P é apenas lido. --series mantém os tipos daquele nome (\"Precipitação\") ou\n"
        "número (0), e pode ser repetida; os tipos de entrada são 0 Precipitação, 1 Evaporação,\n"
        "2 Vazão natural incremental, 3 Volume meta, 5 Demanda, 7 Perda em trânsito e 42 Limite\n"
        "de trecho. Sem ela, todo tipo que tenha valores. Uma série copiada substitui os valores\n"
        "do destino data a data e é gravada no banco de dados do destino. Um elemento cujo\n"
        "homônimo é de outro tipo (um reservatório com o nome de uma junção; demandas de qualquer\n"
        "uso são um só tipo, e também os trechos) é ignorado, assim como aquele cujas séries dos\n"
        "tipos pedidos não têm valor. Os resultados gravados do destino são mantidos, com um "
        "aviso\n"
        "de que correspondem às entradas anteriores. Mostra uma linha por elemento copiado ou de\n"
        "outro tipo, os elementos sem homônimo e depois um resumo que os conta, e também os que\n"
        "não têm nada a copiar.\n"
        "Código de saída: 0 copiado, 1 nada copiado, 2 erro de uso ou de arquivo.\n"}},
      {"export",
       {"csv: the results of the latest stored run, one CSV file per element and window, in a\n"
        "folder named after the scenario. inputs: the input series, one CSV file per element.\n"
        "cav: the level-area-volume tables of the reservoirs, in <scenario>_cav.txt.\n"
        "dot: the network as a Graphviz digraph in FILE (draw it with 'dot -Tsvg FILE'): a\n"
        "line per link, labelled with its name, then a line per node, shaped and coloured by\n"
        "kind. By priorities, reservoirs and demands add P=<priority> to their label; in a\n"
        "guarantee curve, each reservoir of the curve adds Q90=<flow> (m³/s, the stored curve\n"
        "at 90 %), in a system curve the out reservoir, and Q90=- when the stored curve has no\n"
        "flow of 90 % for it (not run, or the level not reached).\n"
        "kml: the reservoirs as points and the links as lines, in FILE, for map viewers; X is\n"
        "the longitude and Y the latitude, as the project holds them.\n"
        "FILE appears whole or not at all.\n",
        "csv: os resultados da última execução gravada, um arquivo CSV por elemento e janela,\n"
        "numa pasta com o nome do cenário. inputs: as séries de entrada, um arquivo CSV por\n"
        "elemento. cav: as tabelas cota-área-volume dos reservatórios, em <cenário>_cav.txt.\n"
        "dot: a rede como um digraph do Graphviz em FILE (desenhe-o com 'dot -Tsvg FILE'): uma\n"
        "linha por trecho, rotulada com seu nome, depois uma linha por nó, com forma e cor\n"
        "conforme o tipo. Por prioridades, reservatórios e demandas acrescentam P=<prioridade>\n"
        "ao rótulo; numa curva de garantia, cada reservatório da curva acrescenta Q90=<vazão>\n"
        "(m³/s, a curva gravada a 90 %), numa curva do sistema o reservatório de saída, e\n"
        "Q90=- quando a curva gravada não tem vazão de 90 % para ele (não executada, ou o nível\n"
        "não alcançado).\n"
        "kml: os reservatórios como pontos e os trechos como linhas, em FILE, para visualizadores\n"
        "de mapas; X é a longitude e Y a latitude, como o projeto os guarda.\n"
        "FILE aparece inteiro ou não aparece.\n"}},
      {"generate",
       {"Writes OUT.sjson and OUT.sjson.sqlite: one scenario over T months from January 1901\n"
        "with N reservoirs (1 to 1000) in a tree of tributaries, M demands (0 to 5000) of every\n"
        "kind, junctions, rivers and canals, and a drain at the mouth. Inflows have seasons\n"
        "and multi-year droughts. --mode rule (the default) gives every reservoir a release\n"
        "rule and every node an allocation matrix; --mode priority gives priorities and target\n"
        "volumes. T is 1 to 12000. The same --seed (default 1) gives the same files.\n"
        "--layout chain (priority mode, the default there) gives instead the benchmark river:\n"
        "N reservoirs in a row into the drain, demand j drawing from reservoir j mod N, demands\n"
        "at priorities 1 to 3 and reservoirs at 4; with --own-priorities every reservoir and\n"
        "demand has a priority of its own, upstream first (at most 98 of them).\n"
        "OUT must not exist yet; Ctrl-C while saving leaves no file behind.\n",
        "Escreve OUT.sjson e OUT.sjson.sqlite: um cenário de T meses a partir de janeiro de 1901\n"
        "com N reservatórios (1 a 1000) numa árvore de afluentes, M demandas (0 a 5000) de todos\n"
        "os tipos, junções, rios e canais, e um sumidouro na foz. As vazões têm estações e secas\n"
        "de vários anos. --mode rule (o padrão) dá a cada reservatório uma regra de liberação e\n"
        "a cada nó uma matriz de alocação; --mode priority dá prioridades e volumes meta. T vai\n"
        "de 1 a 12000. A mesma --seed (padrão 1) dá os mesmos arquivos.\n"
        "--layout chain (modo prioridade, o padrão nele) dá em vez disso o rio de referência:\n"
        "N reservatórios em fila até o sumidouro, a demanda j tomando do reservatório j mod N,\n"
        "demandas com prioridades 1 a 3 e reservatórios com 4; com --own-priorities cada\n"
        "reservatório e demanda tem prioridade própria, de montante para jusante (no máximo 98).\n"
        "OUT ainda não pode existir; Ctrl-C durante a gravação não deixa arquivo algum.\n"}},
      {"info",
       {"Prints each scenario's kind, execution method and period, then its elements counted\n"
        "by kind; with --elements, every element instead: its kind, name and id, the\n"
        "capacity, minimum and initial volumes of a reservoir (hm³), the mean of a demand\n"
        "(m³/s), the priority in a priority scenario and the release rule in a rule\n"
        "scenario (\"-\" where the element has none).\n",
        "Mostra o tipo, o método de execução e o período de cada cenário, depois seus elementos\n"
        "contados por tipo; com --elements, cada elemento em vez disso: seu tipo, nome e id, os\n"
        "volumes de capacidade, mínimo e inicial de um reservatório (hm³), a média de uma\n"
        "demanda (m³/s), a prioridade num cenário de prioridades e a regra de liberação num\n"
        "cenário de regras (\"-\" onde o elemento não tem).\n"}},
      {"metrics",
       {"Computes the metrics of the reservoirs and demands from the latest stored run of the\n"
        "scenario, in window N (counted from 1, default 1); with --windows all, each metric over\n"
        "every window: its minimum, 10th, 50th and 90th percentiles and maximum. Drains are left\n"
        "out unless --elements all. A figure that has no meaning (a division by nothing, a target\n"
        "metric of a reservoir without target) is \"-\" (empty in csv, null in json).\n"
        "Every output first names the scenario, the windows with their first and last dates and\n"
        "the stored run's time stamp, and warns when the project's inputs were saved after it.\n"
        "The table has one line per metric and one column per element; csv has one line per\n"
        "element (the reservoirs' table, a blank line, then the demands'), behind '# ' lines;\n"
        "json has {\"scenario\", \"windows\", \"first\", \"last\", \"storedRun\",\n"
        "\"inputsNewerThanRun\", \"Reservatórios\": [...], \"Demandas\": [...]}.\n",
        "Calcula as métricas dos reservatórios e demandas a partir da última execução gravada do\n"
        "cenário, na janela N (contada a partir de 1, padrão 1); com --windows all, cada métrica\n"
        "sobre todas as janelas: seu mínimo, percentis 10, 50 e 90 e máximo. Os sumidouros\n"
        "ficam de fora salvo com --elements all. Um número sem sentido (uma divisão por nada, uma\n"
        "métrica de meta de um reservatório sem meta) é \"-\" (vazio em csv, null em json).\n"
        "Toda saída começa nomeando o cenário, as janelas com suas primeira e última datas e o\n"
        "carimbo de tempo da execução gravada, e avisa quando as entradas do projeto foram\n"
        "gravadas depois dela. A tabela tem uma linha por métrica e uma coluna por elemento;\n"
        "csv tem uma linha por elemento (a tabela dos reservatórios, uma linha em branco, depois\n"
        "a das demandas), após linhas '# '; json tem {\"scenario\", \"windows\", \"first\", "
        "\"last\",\n"
        "\"storedRun\", \"inputsNewerThanRun\", \"Reservatórios\": [...], \"Demandas\": "
        "[...]}.\n"}},
      {"new",
       {"Writes P.sjson and its database P.sjson.sqlite with one priority scenario without\n"
        "elements over the months of the current year. P must not exist yet.\n",
        "Escreve P.sjson e seu banco de dados P.sjson.sqlite com um cenário de prioridades sem\n"
        "elementos sobre os meses do ano corrente. P ainda não pode existir.\n"}},
      {"report",
       {"Without --expression, prints the counts of elements by kind, the initial useful volume\n"
        "of the reservoirs and the volume each kind of demand requires over the scenario's\n"
        "period.\n"
        "With --expression TEXT (repeatable) or --expressions FILE (one expression a line, blank\n"
        "lines skipped), evaluates each report expression over the latest stored run of the\n"
        "scenario, in window N (counted from 1, default 1), and prints \"TEXT = VALUE\", one a\n"
        "line; a value without meaning is \"-\". An expression is arithmetic (+ - * / and\n"
        "parentheses) over numbers (1.5e-3), report metrics of an element, as\n"
        "Escassez total em hm3(Irrigação do Submédio), and the operations Min, Max, Sum,\n"
        "Average, VariancePopulation, VarianceSample, StdDeviationPopulation and\n"
        "StdDeviationSample over one series of an element, as Max(Sobradinho, Volume final).\n"
        "A name that holds an operator, a parenthesis or a comma goes in double quotes:\n"
        "\"Juazeiro-Petrolina\". A minus before an operand negates it.\n"
        "--dot FILE also writes the tree of every expression as a Graphviz digraph, one after\n"
        "the other in FILE, each behind a comment line '// TEXT'.\n"
        "A malformed expression is told on one line with the position of the character at\n"
        "fault; nothing is then printed or written (exit status 2).\n",
        "Sem --expression, mostra a contagem de elementos por tipo, o volume útil inicial dos\n"
        "reservatórios e o volume que cada tipo de demanda requer no período do cenário.\n"
        "Com --expression TEXT (repetível) ou --expressions FILE (uma expressão por linha,\n"
        "linhas em branco ignoradas), avalia cada expressão de relatório sobre a última execução\n"
        "gravada do cenário, na janela N (contada a partir de 1, padrão 1), e mostra\n"
        "\"TEXT = VALOR\", uma por linha; um valor sem sentido é \"-\". Uma expressão é\n"
        "aritmética (+ - * / e parênteses) sobre números (1.5e-3), métricas de relatório de um\n"
        "elemento, como Escassez total em hm3(Irrigação do Submédio), e as operações Min, Max,\n"
        "Sum, Average, VariancePopulation, VarianceSample, StdDeviationPopulation e\n"
        "StdDeviationSample sobre uma série de um elemento, como Max(Sobradinho, Volume final).\n"
        "Um nome que contém um operador, um parêntese ou uma vírgula vai entre aspas duplas:\n"
        "\"Juazeiro-Petrolina\". Um menos antes de um operando troca seu sinal.\n"
        "--dot FILE também escreve a árvore de cada expressão como um digraph do Graphviz, uma\n"
        "após a outra em FILE, cada uma após uma linha de comentário '// TEXT'.\n"
        "Uma expressão malformada é relatada numa linha com a posição do caractere onde está o\n"
        "erro; nada é então mostrado nem escrito (código de saída 2).\n"}},
      {"save-as",
       {"Opens P and saves it as Q: the project file Q.sjson and its database Q.sjson.sqlite.\n"
        "Q must not exist yet. Ctrl-C cancels the save and leaves no Q behind (exit status 3).\n",
        "Abre P e o grava como Q: o arquivo de projeto Q.sjson e seu banco Q.sjson.sqlite.\n"
        "Q ainda não pode existir. Ctrl-C cancela a gravação e não deixa Q algum (código 3).\n"}},
      {"series",
       {"Prints the input series of the element and its result series from the latest stored\n"
        "run of the scenario, over window N (counted from 1, default 1): one line per date and\n"
        "series, with the columns date (YYYY-MM-DD), kind, direction (input or result), value\n"
        "and unit. --kind keeps only the series of that name (\"Volume final\") or number (10);\n"
        "it may be repeated. A missing value is \"-\" (empty in csv, null in json). csv\n"
        "separates fields by ','; json is an array of {\"date\", \"kind\", \"direction\",\n"
        "\"value\", \"unit\"}.\n",
        "Mostra as séries de entrada do elemento e suas séries de resultado da última execução\n"
        "gravada do cenário, na janela N (contada a partir de 1, padrão 1): uma linha por data e\n"
        "série, com as colunas date (AAAA-MM-DD), kind, direction (input ou result), value e\n"
        "unit. --kind mantém só as séries daquele nome (\"Volume final\") ou número (10); pode\n"
        "ser repetida. Um valor ausente é \"-\" (vazio em csv, null em json). csv separa os\n"
        "campos por ','; json é uma lista de {\"date\", \"kind\", \"direction\", \"value\", "
        "\"unit\"}.\n"}},
      {"run",
       {"Runs the named scenarios (all when none is named) one after the other, printing each\n"
        "one's status. Results are stored in the project database unless --no-save; --csv DIR\n"
        "also writes them as CSV files under DIR. Progress goes to standard error (none with\n"
        "--quiet). Ctrl-C cancels the scenario running and leaves the database as it was.\n"
        "--solver chooses the solver of the priority programmes for this run, whatever the\n"
        "project names (lp_solve unless it names CLP).\n"
        "A rule optimisation shows its progress per simulation, then prints its front (one row\n"
        "per solution, the value of each objective function) and stores it in the project file\n"
        "(and the files VAR and FUN beside it) unless --no-save; --seed N makes its swarm\n"
        "draw the same numbers every run, --threads K evaluates its candidates on K threads\n"
        "(default: the machine's cores), with the same front whatever K.\n"
        "A guarantee curve, of a reservoir or of a system, prints its curve when it ends and\n"
        "stores it likewise; --seed N repeats its search, and the swarms of a system curve\n"
        "evaluate on --threads K with the same curve whatever K.\n"
        "--isolated runs a rule or priority scenario piece by piece: one piece per reservoir\n"
        "flagged isolated (its network: the reservoir, what lies upstream of it, and downstream\n"
        "what only it feeds), upstream first, and one for the rest, each piece receiving the\n"
        "flows of the union links from the pieces before it; a guarantee curve runs each trial\n"
        "so. A refused piece prints its findings; a cancelled run stores nothing.\n"
        "Exit status: 0 all ran, 1 a scenario was refused or did not finish, 3 cancelled.\n",
        "Executa os cenários nomeados (todos quando nenhum é nomeado) um após o outro, mostrando\n"
        "a situação de cada um. Os resultados são gravados no banco de dados do projeto salvo com\n"
        "--no-save; --csv DIR também os escreve como arquivos CSV em DIR. O progresso vai para a\n"
        "saída de erro padrão (nenhum com --quiet). Ctrl-C cancela o cenário em execução e deixa\n"
        "o banco de dados como estava.\n"
        "--solver escolhe o resolvedor dos programas de prioridades nesta execução, seja qual for\n"
        "o que o projeto indica (lp_solve, salvo se ele indicar CLP).\n"
        "Uma otimização de regras mostra seu progresso por simulação, depois mostra sua frente\n"
        "(uma linha por solução, o valor de cada função objetivo) e a grava no arquivo do projeto\n"
        "(e nos arquivos VAR e FUN ao lado dele) salvo com --no-save; --seed N faz seu enxame\n"
        "sortear os mesmos números a cada execução, --threads K avalia seus candidatos em K\n"
        "threads (padrão: os núcleos da máquina), com a mesma frente qualquer que seja K.\n"
        "Uma curva de garantia, de um reservatório ou de um sistema, mostra sua curva ao terminar\n"
        "e a grava da mesma forma; --seed N repete sua busca, e os enxames de uma curva do\n"
        "sistema avaliam em --threads K com a mesma curva qualquer que seja K.\n"
        "--isolated executa um cenário de regras ou de prioridades por partes: uma parte por\n"
        "reservatório marcado como isolado (sua rede: o reservatório, o que está a montante dele\n"
        "e, a jusante, o que só ele alimenta), de montante para jusante, e uma para o restante,\n"
        "cada parte recebendo as vazões dos trechos de união das partes anteriores; uma curva de\n"
        "garantia executa assim cada tentativa. Uma parte recusada mostra suas pendências; uma\n"
        "execução cancelada não grava nada.\n"
        "Código de saída: 0 todos executados, 1 um cenário foi recusado ou não terminou, 3\n"
        "cancelado.\n"}},
      {"front",
       {"Prints the front that the latest run of the rule optimisation stored in the project:\n"
        "one row per solution with its index (the row that 'kova solution' takes), the value\n"
        "of each objective function and the decision variables x1..xn, each in [0, 1]. csv\n"
        "separates fields by ',' and gives 17 significant digits; json is an array of\n"
        "{\"row\", \"objectives\": {\"<function>\": value}, \"variables\": [...]}.\n"
        "Exit status: 0 printed, 1 the scenario has no stored front, 2 usage or file error.\n",
        "Mostra a frente que a última execução da otimização de regras gravou no projeto: uma\n"
        "linha por solução com seu índice (a linha que 'kova solution' toma), o valor de cada\n"
        "função objetivo e as variáveis de decisão x1..xn, cada uma em [0, 1]. csv separa os\n"
        "campos por ',' e dá 17 algarismos significativos; json é uma lista de\n"
        "{\"row\", \"objectives\": {\"<function>\": value}, \"variables\": [...]}.\n"
        "Código de saída: 0 mostrada, 1 o cenário não tem frente gravada, 2 erro de uso ou de\n"
        "arquivo.\n"}},
      {"curve",
       {"Prints the guarantee curve that the latest run of the scenario stored in the project:\n"
        "one row per level of guarantee (%) that every reservoir of the curve reached, with the\n"
        "constant release (m³/s) of each, the row number being the one 'kova solution' takes;\n"
        "for the curve of a system, the flow of its out reservoir at each level.\n"
        "The table marks Q90; csv has the header 'guarantee' and one column per reservoir,\n"
        "releases in 17 significant digits; json is an array of {\"guarantee\", \"releases\":\n"
        "{\"<reservoir>\": q}}. The levels asked that have no row go to standard error.\n"
        "Exit status: 0 printed, 1 the scenario has no stored curve, 2 usage or file error.\n",
        "Mostra a curva de garantia que a última execução do cenário gravou no projeto: uma\n"
        "linha por nível de garantia (%) que todos os reservatórios da curva alcançaram, com a\n"
        "vazão liberada constante (m³/s) de cada um, sendo o número da linha o que\n"
        "'kova solution' toma; para a curva de um sistema, a vazão de seu reservatório de saída\n"
        "em cada nível.\n"
        "A tabela marca Q90; csv tem o cabeçalho 'guarantee' e uma coluna por reservatório,\n"
        "vazões com 17 algarismos significativos; json é uma lista de {\"guarantee\",\n"
        "\"releases\": {\"<reservoir>\": q}}. Os níveis pedidos que não têm linha vão para a\n"
        "saída de erro padrão.\n"
        "Código de saída: 0 mostrada, 1 o cenário não tem curva gravada, 2 erro de uso ou de\n"
        "arquivo.\n"}},
      {"derive-rules",
       {"Makes the rule scenario \"NAME-rule-<kind>\" that follows the stored run of the\n"
        "scenario by priorities NAME: the same network and period, run continuously, each node\n"
        "sharing its outflow among its links as they shared it in the run (the mean share of\n"
        "each total flow), and each reservoir releasing by the kind of rule chosen: series, the\n"
        "run's own releases; knn, tree or forest, a nearest-neighbour, regression-tree or\n"
        "random-forest model of its release against the volumes with which each period began\n"
        "of all the reservoirs, trained on the run's periods. --entries K (default 5) is the\n"
        "number of neighbours averaged, or the least number of periods of a node a tree may\n"
        "split; --best-entries MAX chooses it per reservoir, from 1 to MAX, as the number that\n"
        "errs least over five folds of the periods. --seed N makes the forest's draws\n"
        "repeatable. For a model it prints, per reservoir, the number of entries and the mean\n"
        "squared error over five folds of its periods. The scenario is saved into the project.\n"
        "Exit status: 0 made, 2 usage or file error (no stored run, the scenario exists), 3\n"
        "cancelled.\n",
        "Cria o cenário de regras \"NAME-rule-<tipo>\" que segue a execução gravada do cenário\n"
        "por prioridades NAME: a mesma rede e o mesmo período, executados de forma contínua,\n"
        "cada nó repartindo sua vazão de saída entre seus trechos como na execução (a parcela\n"
        "média de cada vazão total), e cada reservatório liberando pelo tipo de regra escolhido:\n"
        "series, as próprias liberações da execução; knn, tree ou forest, um modelo de vizinhos\n"
        "mais próximos, árvore de regressão ou floresta aleatória de sua liberação em função dos\n"
        "volumes com que cada período começou em todos os reservatórios, treinado nos períodos\n"
        "da execução. --entries K (padrão 5) é o número de vizinhos na média, ou o menor número\n"
        "de períodos de um nó que uma árvore pode dividir; --best-entries MAX o escolhe por\n"
        "reservatório, de 1 a MAX, como o número que menos erra em cinco partições dos períodos.\n"
        "--seed N torna repetíveis os sorteios da floresta. Para um modelo, mostra por\n"
        "reservatório o número de entradas e o erro quadrático médio em cinco partições de seus\n"
        "períodos. O cenário é gravado no projeto.\n"
        "Código de saída: 0 criado, 2 erro de uso ou de arquivo (sem execução gravada, o cenário\n"
        "já existe), 3 cancelado.\n"}},
      {"convert",
       {"Makes the scenario \"NAME-<kind>\" (or --name NEW) of another kind out of the scenario\n"
        "NAME, over a copy of its network, input series and period, and saves it into the\n"
        "project; NAME is left as it is. What has a meaning in the new kind is carried over:\n"
        "out of priorities, each reservoir releases the mean of its releases in the stored run\n"
        "(the scenario runs first when it has none) and each node shares its outflow as its\n"
        "links carried it; into an optimisation or a system curve, each rule becomes its\n"
        "optimisable twin, its releases left to the swarm; back to rules, each optimisable rule\n"
        "becomes the simulation rule of its present numbers; a guarantee curve asks for the\n"
        "curve of every enabled reservoir. The README tells the whole list.\n"
        "Exit status: 0 made, 2 usage or file error (the kind it has, the name exists), 3\n"
        "cancelled.\n",
        "Cria o cenário \"NAME-<tipo>\" (ou --name NOVO) de outro tipo a partir do cenário NAME,\n"
        "sobre uma cópia de sua rede, de suas séries de entrada e de seu período, e o grava no\n"
        "projeto; NAME fica como está. O que tem sentido no novo tipo é levado: a partir de\n"
        "prioridades, cada reservatório libera a média de suas liberações na execução gravada\n"
        "(o cenário é executado antes quando não tem uma) e cada nó reparte sua vazão de saída\n"
        "como seus trechos a levaram; para uma otimização ou curva de sistema, cada regra se\n"
        "torna sua gêmea otimizável, com as liberações deixadas ao enxame; de volta a regras,\n"
        "cada regra otimizável se torna a regra de simulação de seus números atuais; uma curva\n"
        "de garantia pede a curva de cada reservatório habilitado. O README traz a lista toda.\n"
        "Código de saída: 0 criado, 2 erro de uso ou de arquivo (o tipo que já tem, o nome\n"
        "existe), 3 cancelado.\n"}},
      {"solution",
       {"Makes the rule scenario \"NAME-SOL-I\" out of row I of the stored front of the rule\n"
        "optimisation NAME (the rows 'kova front' prints): the same network and period, run\n"
        "continuously, each optimisable rule replaced by the simulation rule that the row's\n"
        "decision variables give; 'kova run' then reproduces the row's objective values. For\n"
        "a guarantee curve NAME it makes \"NAME-GUA-I\", in which each reservoir of the curve\n"
        "releases its flow of row I ('kova curve') constantly. The scenario is saved into the\n"
        "project.\n"
        "Exit status: 0 made, 2 usage or file error (no such row, the scenario exists), 3\n"
        "cancelled.\n",
        "Cria o cenário de regras \"NAME-SOL-I\" a partir da linha I da frente gravada da\n"
        "otimização de regras NAME (as linhas que 'kova front' mostra): a mesma rede e o mesmo\n"
        "período, executados de forma contínua, cada regra otimizável substituída pela regra de\n"
        "simulação que as variáveis de decisão da linha dão; 'kova run' então reproduz os\n"
        "valores objetivo da linha. Para uma curva de garantia NAME, cria \"NAME-GUA-I\", em que\n"
        "cada reservatório da curva libera constantemente sua vazão da linha I ('kova curve').\n"
        "O cenário é gravado no projeto.\n"
        "Código de saída: 0 criado, 2 erro de uso ou de arquivo (linha inexistente, o cenário já\n"
        "existe), 3 cancelado.\n"}},
  };
  return table;
}

std::optional<HostText::Language>& chosen() {
  static std::optional<HostText::Language> language;
  return language;
}

HostText::Language inUse() {
  if (!chosen()) chosen() = HostText::fromEnvironment();
  return *chosen();
}

}  // namespace

HostText::Language HostText::fromEnvironment() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    return std::string(value).compare(0, 2, "pt") == 0 ? Language::portuguese : Language::english;
  }
  return Language::english;
}

void HostText::use(Language language) { chosen() = language; }

std::string HostText::of(const std::string& english) {
  if (inUse() == Language::english) return english;
  const auto found = portuguese().find(english);
  return found == portuguese().end() ? english : found->second;
}

bool HostText::translated(const std::string& english) { return portuguese().count(english) != 0; }

std::string HostText::fill(const std::string& english, const std::vector<std::string>& values) {
  std::string text = of(english);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string mark = "{" + std::to_string(i + 1) + "}";
    for (auto at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + values[i].size())) {
      text.replace(at, mark.size(), values[i]);
    }
  }
  return text;
}

std::string HostText::help(const std::string& command) {
  const auto found = helps().find(command);
  if (found == helps().end()) {
    throw std::invalid_argument("HostText::help(): no help for the command \"" + command + "\"");
  }
  return inUse() == Language::english ? found->second.first : found->second.second;
}
