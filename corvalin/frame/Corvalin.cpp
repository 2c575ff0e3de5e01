#include "corvalin/frame/Corvalin.h"

#include "corvalin/casedb/casoBD.h"
#include "corvalin/execution/AssistenteExecucao.h"
#include "corvalin/execution/ComandosCorvalin.h"
#include "corvalin/execution/ListaPostos.h"
#include "corvalin/execution/RegistroTexto.h"
#include "corvalin/frame/Geral.h"
#include "corvalin/frame/Mensagens.h"
#include "halvo/sdk/CamadaAcesso.h"
#include "halvo/sdk/Caso.h"
#include "halvo/sdk/Servicos.h"
#include "halvo/sdk/ServicosHalvo.h"
#include "halvo/sdk/UtilitariosArquivo.h"
#include "platform/runtime/ErroVB.h"
#include "platform/texto/Texto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <array>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace corvalin {

namespace {

constexpr std::int16_t CodigoDoModelo = 6;

struct EntradaDaTabela {
    std::int32_t grupo;
    std::int16_t item;
    const char16_t* titulo;
    std::int32_t agrupamento;
    bool flag;
    const char* tela;
};

// The fixed list of screens, by group and item; the host names the groups.
constexpr std::array<EntradaDaTabela, 9> TabelaDeTelas{{
    {1, 1, u"Opções", 4, true, "FrmOpcoes"},
    {1, 2, u"Dados Gerais", 4, false, "FrmDadosGerais"},
    {1, 3, u"Histórico de Vazões Semanais", 1, true, "FrmPostos"},
    {1, 4, u"Limites", 1, false, "FrmLimites"},
    {2, 1, u"Importação", 0, true, "FrmImporta"},
    {3, 1, u"Execução", 0, true, "FrmExecutar"},
    {4, 1, u"Previsões", 0, true, "FrmPrevisoes"},
    {4, 2, u"Gráfico das Previsões", 0, false, "FrmGrafico"},
    {4, 3, u"Arquivos", 0, false, "FrmResultados"},
}};

const EntradaDaTabela* pEntrada(std::int32_t grupo, std::int16_t item) {
    for (const auto& entrada : TabelaDeTelas) {
        if (entrada.grupo == grupo && entrada.item == item) {
            return &entrada;
        }
    }
    return nullptr;
}

QString pComSeparador(const QString& pasta) {
    return pasta.endsWith(QDir::separator()) ? pasta : pasta + QDir::separator();
}

// The folder of the binary that holds this code: the plug-in's library when the host loaded it.
QString pPastaDoModulo() {
    QString caminho;
#ifdef Q_OS_WIN
    HMODULE modulo = nullptr;
    wchar_t nome[MAX_PATH];
    if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCWSTR>(&pPastaDoModulo), &modulo) &&
        GetModuleFileNameW(modulo, nome, MAX_PATH) > 0) {
        caminho = QString::fromWCharArray(nome);
    }
#else
    Dl_info informacao{};
    if (dladdr(reinterpret_cast<const void*>(&pPastaDoModulo), &informacao) != 0 && informacao.dli_fname) {
        caminho = QFile::decodeName(informacao.dli_fname);
    }
#endif
    return QDir::toNativeSeparators(QFileInfo(caminho).absolutePath());
}

}  // namespace

Corvalin::Corvalin(std::unique_ptr<AberturaTelas> telas)
    : mTelas(std::move(telas)), mVersaoInterface(corvalin::VersaoInterface()), mPastaPlugin(pPastaDoModulo()) {
    mObjetos.casoBD = std::make_shared<casoBD>();
    mObjetos.CamadaAcesso = std::make_shared<halvo::CamadaAcesso>();
    halvo::Servicos::halvo().ModeloAtual(CodigoDoModelo);
}

Corvalin::~Corvalin() = default;

QString Corvalin::Modelo() const { return QStringLiteral("Corvalin"); }

QString Corvalin::Descricao() const { return QStringLiteral("Modelo Estocástico de Previsão de Vazões Semanais"); }

QString Corvalin::VersaoModelo() const { return Constantes::cteVersaoModelo; }

QString Corvalin::VersaoInterface() const { return mVersaoInterface; }

std::int32_t Corvalin::CodigoDoCaso() const {
    if (!mObjetos.caso) {
        throw plataforma::ErroVB::padrao(plataforma::ErroObjetoNaoDefinido);
    }
    return texto::CLng(mObjetos.caso->Item(QStringLiteral("Codigo")));
}

std::int32_t Corvalin::ModeloCodigo() const { return CodigoDoModelo; }

std::int16_t Corvalin::AbrirCaso(std::shared_ptr<halvo::caso> c, std::shared_ptr<halvo::Notificador> n) {
    mObjetos.caso = std::move(c);
    mObjetos.Notificador = std::move(n);
    return mObjetos.casoBD->Abrir(*mObjetos.caso, false, true) ? 1 : 0;
}

std::int16_t Corvalin::CriarCaso(const QString& pasta) {
    if (!mObjetos.casoBD->Criar(halvo::Servicos::halvo().CaminhoCompleto(pasta))) {
        return 0;
    }
    mObjetos.casoBD->Fechar();
    return 1;
}

// Copies the files that lie directly in the case folder; the database must be released first,
// so a copy needs an open case and leaves it closed.
std::int16_t Corvalin::CopiarCaso(QString& origem, QString& destino) {
    auto& servicos = halvo::Servicos::halvo();
    origem = servicos.CaminhoCompleto(origem);
    destino = servicos.CaminhoCompleto(destino);
    try {
        origem = pComSeparador(origem);
        destino = pComSeparador(destino);
        const halvo::UtilitariosArquivo arquivos;
        if (!arquivos.PastaExiste(destino) && !arquivos.CriaPasta(destino)) {
            return 0;
        }
        mObjetos.casoBD->DadosFecha();
        const QStringList nomes = QDir(origem).entryList(QDir::Files | QDir::NoDotAndDotDot);
        for (const QString& nome : nomes) {
            if (!arquivos.CopiaArquivo(origem + nome, destino + nome, true)) {
                return 0;
            }
        }
        return 1;
    } catch (const plataforma::ErroVB&) {
        return 0;
    }
}

std::int16_t Corvalin::FecharCaso() {
    mObjetos.casoBD->Fechar();
    return 1;
}

std::int16_t Corvalin::ApagarCaso(const QString& pasta) {
    const PonteiroOcupado ponteiro;
    try {
        const QString caminho = halvo::Servicos::halvo().CaminhoParaApagar(pasta);
        return halvo::UtilitariosArquivo().ApagaPasta(caminho, true) ? 1 : 0;
    } catch (const plataforma::ErroVB&) {
        return 0;
    }
}

std::int16_t Corvalin::JanelaAbrir(std::int16_t item, std::int32_t grupo, QObject* contexto) {
    const EntradaDaTabela* entrada = pEntrada(grupo, item);
    if (entrada == nullptr || !mTelas) {
        return 0;
    }
    return mTelas->Abrir(QString::fromLatin1(entrada->tela), mObjetos, item, grupo, contexto) ? 1 : 0;
}

std::optional<std::vector<halvo::EntradaTela>> Corvalin::Telas(std::int32_t grupo) const {
    std::vector<halvo::EntradaTela> telas(1);
    for (const auto& entrada : TabelaDeTelas) {
        if (entrada.grupo == grupo) {
            telas.push_back({QString::fromUtf16(entrada.titulo), entrada.agrupamento, entrada.flag});
        }
    }
    if (telas.size() == 1) {
        return std::nullopt;
    }
    return telas;
}

// The run of the whole case as the host asks for it: the assistant's screen kept hidden, whose
// opening already loaded the list before the run loads it again, and the notifier that came
// with the call.
std::int16_t Corvalin::Executar(std::shared_ptr<halvo::Notificador> n) {
    ObjetosCaso objetos = mObjetos;
    objetos.Notificador = std::move(n);
    const auto executa = [&](RegistroTexto& registro) {
        ListaPostosMemoria lista;
        AssistenteExecucao assistente(objetos, mPastaPlugin, lista, registro);
        assistente.pCarregarPostos();
        assistente.ExecutarCorvalin();
    };
    if (mSaidaDaExecucao) {
        RegistroConsole console(*mSaidaDaExecucao);
        console.setMarcaAvisos(false);
        executa(console);
    } else {
        RegistroMemoria oculto;
        executa(oculto);
    }
    return 1;
}

std::int16_t Corvalin::Converter(const QVariant&) { return 0; }

std::int16_t Corvalin::Importar(const QVariant&) { return 0; }

std::int16_t Corvalin::Exportar(const QVariant&) { return 0; }

std::vector<halvo::ComandosDoModelo::Comando> Corvalin::Comandos() const { return ComandosCorvalin::Comandos(); }

int Corvalin::Executa(const QString& nome, const QStringList& argumentos, QTextStream& saida, QTextStream& erro) {
    if (!mObjetos.caso) {
        throw plataforma::ErroVB::padrao(plataforma::ErroObjetoNaoDefinido);
    }
    return ComandosCorvalin(mObjetos, mPastaPlugin, saida, erro).Executa(nome, argumentos);
}

ObjetosCaso Corvalin::Objetos() const { return mObjetos; }

}  // namespace corvalin
