#include "solver/DadosGerais.h"

#include "solver/Falha.h"
#include "solver/Texto.h"

#include <vector>

namespace solver {

namespace {

// Lines 1 to 16 must be there; line 17, the 53-week flag, came later and may be absent.
constexpr std::size_t linhasObrigatorias = 16;

class LeitorLinhas {
public:
    LeitorLinhas(std::vector<std::string> linhas, std::string arquivo)
        : linhas_(std::move(linhas)), arquivo_(std::move(arquivo)) {}

    std::string texto(std::size_t numero) const {
        return numero <= linhas_.size() ? std::string(apara(linhas_[numero - 1])) : std::string();
    }

    int inteiro(std::size_t numero, const char* significado, int minimo, int maximo) const {
        const auto valor = inteiroExato(texto(numero));
        if (!valor || *valor < minimo || *valor > maximo) {
            throw FalhaExecucao(CodigoEstado::entradaInvalida,
                                "Valor inválido de " + std::string(significado) + " na linha " +
                                    std::to_string(numero) + " do arquivo de dados gerais " + arquivo_ + ".");
        }
        return *valor;
    }

    std::string nome(std::size_t numero, const char* significado) const {
        std::string valor = texto(numero);
        if (valor.empty()) {
            throw FalhaExecucao(CodigoEstado::entradaInvalida,
                                "Falta o nome do arquivo de " + std::string(significado) + " na linha " +
                                    std::to_string(numero) + " do arquivo de dados gerais " + arquivo_ + ".");
        }
        return valor;
    }

    std::size_t tamanho() const { return linhas_.size(); }

private:
    std::vector<std::string> linhas_;
    std::string arquivo_;
};

}  // namespace

DadosGerais leDadosGerais(const std::filesystem::path& arquivo) {
    const std::string nomeArquivo = arquivo.filename().string();
    auto linhas = leLinhas(arquivo);
    if (!linhas) {
        throw FalhaExecucao(CodigoEstado::entradaInvalida,
                            "O arquivo de dados gerais " + nomeArquivo + " não foi encontrado.");
    }
    if (linhas->size() < linhasObrigatorias) {
        throw FalhaExecucao(CodigoEstado::entradaInvalida,
                            "O arquivo de dados gerais " + nomeArquivo + " tem menos de 16 linhas.");
    }
    const LeitorLinhas l(std::move(*linhas), nomeArquivo);
    DadosGerais d;
    d.arquivoRelatorio = l.nome(1, "relatório");
    d.imprimeParametros = !l.texto(2).empty() && (l.texto(2)[0] == 'S' || l.texto(2)[0] == 's');
    d.arquivoVazoesSemanais = l.nome(3, "vazões semanais");
    d.transformacao = l.inteiro(4, "transformação", 0, 5);
    d.mesInicial = l.inteiro(5, "mês inicial", 1, 12);
    d.arquivoPrevisoes = l.nome(6, "previsões");
    d.arquivoPlanilha = l.nome(7, "estatística das previsões");
    d.intervaloConfianca = l.inteiro(8, "intervalo de confiança", 0, 100);
    d.usaVazpast = l.inteiro(11, "uso do Vazpast", 0, 1) == 0;
    d.anoInicialPrev = l.inteiro(10, "ano inicial da previsão", 1, 9999);
    if (d.usaVazpast) {
        d.arquivoVazpast = l.nome(12, "Vazpast");
    }
    d.anoFinalHistorico = l.inteiro(13, "ano final do histórico", 1, 9999);
    d.codigo = l.inteiro(14, "código do posto", 0, 999999999);
    d.flagLimite = l.inteiro(15, "tipo de limite", 0, 2);
    if (d.flagLimite != 0) {
        d.arquivoLimites = l.nome(16, "limites");
    }
    if (l.tamanho() > linhasObrigatorias && !l.texto(17).empty()) {
        d.numSemanas = l.inteiro(17, "uso de 53 semanas", 0, 1) == 1 ? 53 : 52;
    }
    d.semanaInicialPrev = l.inteiro(9, "semana inicial da previsão", 1, d.numSemanas);
    return d;
}

DadosGerais leCaso(const std::filesystem::path& pasta) {
    const auto linhas = leLinhas(pasta / "Caso.dat");
    if (!linhas) {
        throw FalhaExecucao(CodigoEstado::entradaInvalida, "O arquivo Caso.dat não foi encontrado.");
    }
    const std::string nome = linhas->empty() ? std::string() : std::string(apara(linhas->front()));
    if (nome.empty()) {
        throw FalhaExecucao(CodigoEstado::entradaInvalida,
                            "O arquivo Caso.dat não informa o arquivo de dados gerais.");
    }
    return leDadosGerais(pasta / nome);
}

}  // namespace solver
