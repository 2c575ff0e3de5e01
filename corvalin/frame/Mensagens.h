#pragma once

// The catalogue of the system's texts: messages, captions, file names and keywords, shown to the
// user exactly as they stand. Leading and trailing blanks belong to the texts that are joined to
// others. Entries without a current user are kept: the catalogue is the system's whole vocabulary.

#include <QString>

namespace corvalin {

// Messages and captions.
namespace Mensagens {

inline const QString msgTituloConfirmacao = QStringLiteral("Confirmação");
inline const QString msgTituloErro = QStringLiteral("Erro");
inline const QString msgTituloInformacao = QStringLiteral("Informação");
inline const QString msgErroCriarDiretorio = QStringLiteral("Erro ao criar diretório.");
inline const QString msgErroCriarBanco = QStringLiteral("Erro ao criar banco de dados.");
inline const QString msgErroCopiarArquivo = QStringLiteral("Erro ao copiar arquivo.");
inline const QString msgDiretorioInvalido = QStringLiteral("Diretório inválido.");
inline const QString msgDiretorioDeveEstarVazio = QStringLiteral("O diretório selecionado para o caso deve estar vazio, sem arquivos ou pastas.");
inline const QString msgDeseja = QStringLiteral("Deseja ");
inline const QString msgArquivoInexistente = QStringLiteral("Arquivo inexistente.");
inline const QString msgNomeArquivoInvalido = QStringLiteral("Nome de arquivo inválido.");
inline const QString msgExtensaoInvalida = QStringLiteral("Extensão de arquivo inválida.");
inline const QString msgDiretorioJaExistente = QStringLiteral("Diretório já existente.");
inline const QString msgCasoInexistente = QStringLiteral("Caso inexistente.");
inline const QString msgVersaoIncompativel = QStringLiteral("A versão deste Caso é incompatível com a versão atual da interface.");
inline const QString msgNomeInvalido = QStringLiteral("Nome inválido.");
inline const QString msgNumeroInvalido = QStringLiteral("Número inválido.");
inline const QString msgBancoDanificado = QStringLiteral("O banco de dados referente a esse Caso está danificado ou não é de um Caso Corvalinh.");
inline const QString msgErroLerArquivo = QStringLiteral("Erro ao ler o arquivo.");
inline const QString msgErroGravarArquivo = QStringLiteral("Erro ao gravar o arquivo.");
inline const QString msgPostoJaExiste = QStringLiteral("Este Posto já existe.");
inline const QString msgSelecionePosto = QStringLiteral("Para realizar esta operação é necessário primeiramente selecionar um posto.");
inline const QString msgSemRegistroExcluir = QStringLiteral("Não há um registro para ser excluído.");
inline const QString msgFiltroNaoDefinido = QStringLiteral("Filtro não definido. Digite por exemplo: *.dat");
inline const QString msgAlterarDadosGerais = QStringLiteral("Deseja alterar os Dados Gerais dos Postos já cadastrados?");
inline const QString msgGravarAlteracoes = QStringLiteral("Deseja gravar as alterações realizadas?");
inline const QString msgConfirmaExclusao = QStringLiteral("Tem certeza que deseja excluir este registro?");
inline const QString msgUmAnoHistorico = QStringLiteral(" um ano no histórico?");
inline const QString msgIncluir = QStringLiteral("incluir");
inline const QString msgExcluir = QStringLiteral("excluir");
inline const QString msgErroSingular = QStringLiteral("erro");
inline const QString msgErroPlural = QStringLiteral("erros");
inline const QString msgAvisoSingular = QStringLiteral("aviso");
inline const QString msgAvisoPlural = QStringLiteral("avisos");
inline const QString msgPosto = QStringLiteral("Posto");
inline const QString msgPostoApagado = QStringLiteral("Posto apagado.");
inline const QString msgDadosGeraisOK = QStringLiteral("Dados Gerais OK.");
inline const QString msgHistoricoMenos20Anos = QStringLiteral("O Histórico de Vazões Semanais tem menos de 20 anos.");
inline const QString msgNomeRelatorioInvalido = QStringLiteral("Nome do arquivo de Relatório inválido.");
inline const QString msgNao = QStringLiteral("Não");
inline const QString msgUltimaSemanaDiferente = QStringLiteral("Última semana do Histórico de Vazões Semanais diferente dos demais Postos.");
inline const QString msgDadosGeraisNaoDefinidos = QStringLiteral("Os Dados Gerais não foram definidos para este Posto.");
inline const QString msgNomeDadosGeraisInvalido = QStringLiteral("Nome do arquivo de Dados Gerais inválido.");
inline const QString msgNomeHistoricoInvalido = QStringLiteral("Nome do arquivo do Histórico de Vazões Semanais inválido.");
inline const QString msgNomeVazoesFuturasInvalido = QStringLiteral("Nome do arquivo de Vazões Semanais Futuras inválido.");
inline const QString msgNomeExcelInvalido = QStringLiteral("Nome do arquivo das Estatísticas das Previsões (Excel) inválido.");
inline const QString msgTransformacaoNaoDefinida = QStringLiteral("Transformação das Vazões Históricas Semanais não definida.");
inline const QString msgMesInicialInvalido = QStringLiteral("Mês inicial inválido.");
inline const QString msgIntervaloInvalido = QStringLiteral("Intervalo de confiança inválido.");
inline const QString msgSemanaInicialInvalida = QStringLiteral("Semana Inicial das Previsões inválida.");
inline const QString msgAnoInicialInvalido = QStringLiteral("Ano Inicial das Previsões inválida.");
inline const QString msgVazpastNaoDefinido = QStringLiteral("Arquivo Vazpasts não foi definido.");
inline const QString msgSelecionePostosExecucao = QStringLiteral("Selecione os postos que deseja incluir na execução:");
inline const QString msgValidacaoDados = QStringLiteral("Validação dos dados antes da execução:");
inline const QString msgExecutar = QStringLiteral("Executar");
inline const QString msgExcel = QStringLiteral("Excel");
inline const QString msgSim = QStringLiteral("Sim");
inline const QString msgGerandoDadosGerais = QStringLiteral("Gerando arquivo de Dados Gerais...");
inline const QString msgGerandoVazoesSemanais = QStringLiteral("Gerando arquivo de Vazões Semanais...");
inline const QString msgImportandoArquivo = QStringLiteral("Importando arquivo...");
inline const QString msgNenhumArquivo = QStringLiteral("Não foi encontrado nenhum arquivo.");
inline const QString msgVazoesNaoEncontrado = QStringLiteral("Arquivo de Vazões Semanais não encontrado.");
inline const QString msgVazoesInvalido = QStringLiteral("Arquivo de Vazões Semanais inválido.");
inline const QString msgPrevisoes = QStringLiteral("Previsões");
inline const QString msgSelecioneArquivosImportar = QStringLiteral("Selecione os arquivos de Dados Gerais dos Postos a serem importados:");
inline const QString msgArquivosEncontrados = QStringLiteral("Os arquivos foram encontrados. Clique em 'Iniciar' para iniciar a importação.");
inline const QString msgProblemasArquivos = QStringLiteral("Foram encontrados alguns problemas nos arquivos selecionados:");
inline const QString msgImportando = QStringLiteral("Importando...");
inline const QString msgRelatorio = QStringLiteral("Relatório");
inline const QString msgImportacaoConcluida = QStringLiteral("Importação concluída com sucesso. Clique em 'Fechar' para encerrar o Assistente.");
inline const QString msgProblemasImportacao = QStringLiteral("Ocorreram alguns problemas durante a importação:");
inline const QString msgErroLeituraArquivo = QStringLiteral("Erro na leitura do arquivo de");
inline const QString msgErroLeituraArquivos = QStringLiteral("Erro na leitura dos arquivos de");
inline const QString msgOAno = QStringLiteral("o ano ");
inline const QString msgAnoIncompletoLinha = QStringLiteral(" está incompleto - linha: ");
inline const QString msgInterfaceVersao = QStringLiteral("Interface versão ");
inline const QString msgModeloVersao = QStringLiteral("Modelo versão ");
inline const QString msgLimiteInferior = QStringLiteral("Limite Inferior");
inline const QString msgLimiteSuperior = QStringLiteral("Limite Superior");
inline const QString msgVazoesVerificadas = QStringLiteral("Vazões Verificadas");
inline const QString msgVazoesPrevistas = QStringLiteral("Vazões Previstas");
inline const QString msgVazoesSemanais = QStringLiteral("Vazões Semanais");
inline const QString msgDadosGerais = QStringLiteral("Dados Gerais");
inline const QString msgVazpasts = QStringLiteral("Vazpasts");
inline const QString msgAno = QStringLiteral("Ano");
inline const QString msgSem = QStringLiteral("Sem");
inline const QString msgSemana = QStringLiteral("Semana");
inline const QString msgVazao = QStringLiteral("Vazão");
inline const QString msgAvancar = QStringLiteral("Avançar");
inline const QString msgIniciar = QStringLiteral("Iniciar");
inline const QString msgFechar = QStringLiteral("Fechar");
inline const QString msgArquivo = QStringLiteral("Arquivo");
inline const QString msgDe = QStringLiteral("de");
inline const QString msgPrevisao = QStringLiteral("Previsão");
inline const QString msgLInf = QStringLiteral("L. Inf.");
inline const QString msgLSup = QStringLiteral("L. Sup.");
inline const QString msgCasoExecutadoSucesso = QStringLiteral("Caso executado com sucesso.");
inline const QString msgCasoExecutadoErro = QStringLiteral("Caso executado com erro.");

}  // namespace Mensagens

// Versions, file names, extensions, template words and filters.
namespace Constantes {

inline const QString cteBoxCox = QStringLiteral("Box-Cox");
inline const QString cteExtensaoTxt = QStringLiteral("txt");
inline const QString cteVersaoModelo = QStringLiteral("5.3.2ns");
inline const QString cteVersaoAuxiliar = QStringLiteral("2.06 4.0");
inline const QString cteArquivoBanco = QStringLiteral("Corvalin.mdb");
inline const QString cteArquivoCaso = QStringLiteral("Caso.dat");
inline const QString cteArquivoExecuta = QStringLiteral("Executa.bat");
inline const QString cteArquivoSolver = QStringLiteral("Corvalin.exe");
inline const QString cteArquivoAviso = QStringLiteral("Aviso.txt");
inline const QString cteArquivoErroSolver = QStringLiteral("merro.tmp");
inline const QString cteArquivoPrevp = QStringLiteral("Prevp.dat");
inline const QString cteArquivoPrevt = QStringLiteral("Prevt.dat");
inline const QString cteArquivoRunstate = QStringLiteral("RUNSTATE.DAT");
inline const QString cteExtensaoRelatorio = QStringLiteral("bcx");
inline const QString cteExtensaoVazoes = QStringLiteral("dat");
inline const QString cteExtensaoDadosGerais = QStringLiteral("arq");
inline const QString cteExtensaoArq = QStringLiteral("rel");
inline const QString cteExtensaoPrevisoes = QStringLiteral("prv");
inline const QString cteExtensaoExcel = QStringLiteral("exc");
inline const QString cteNomeCodigoPosto = QStringLiteral("[Código do Posto]");
inline const QString cteNomeAproveitamento = QStringLiteral("[Nome do Aproveitamento]");
inline const QString cteFiltroTodos = QStringLiteral("Todos os arquivos (*.*)|*.*");
inline const QString cteAutorCaso = QStringLiteral("Halvo");

}  // namespace Constantes

}  // namespace corvalin
