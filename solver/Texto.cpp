#include "solver/Texto.h"

#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace solver {

namespace {

// Code points of bytes 0x80 to 0x9F; the five bytes the code page leaves undefined keep their value.
constexpr std::array<char32_t, 32> faixa80 = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                              0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void pAcrescentaUtf8(std::string& saida, char32_t c) {
    if (c < 0x80) {
        saida += static_cast<char>(c);
    } else if (c < 0x800) {
        saida += static_cast<char>(0xC0 | (c >> 6));
        saida += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        saida += static_cast<char>(0xE0 | (c >> 12));
        saida += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        saida += static_cast<char>(0x80 | (c & 0x3F));
    }
}

char pByteCp1252(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    for (std::size_t i = 0; i < faixa80.size(); ++i) {
        if (faixa80[i] == c) {
            return static_cast<char>(0x80 + i);
        }
    }
    return '?';
}

}  // namespace

std::string deCp1252(std::string_view bytes) {
    std::string saida;
    saida.reserve(bytes.size());
    for (const char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        pAcrescentaUtf8(saida, u >= 0x80 && u < 0xA0 ? faixa80[u - 0x80] : char32_t{u});
    }
    return saida;
}

std::string paraCp1252(std::string_view utf8) {
    std::string saida;
    saida.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto u = static_cast<unsigned char>(utf8[i]);
        const std::size_t comprimento = u < 0x80 ? 1 : u < 0xE0 ? 2 : u < 0xF0 ? 3 : 4;
        char32_t c = comprimento == 1 ? u : u & (0x3F >> (comprimento - 1));
        for (std::size_t k = 1; k < comprimento && i + k < utf8.size(); ++k) {
            c = (c << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        }
        saida += pByteCp1252(c);
        i += comprimento;
    }
    return saida;
}

std::optional<std::vector<std::string>> leLinhas(const std::filesystem::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    if (!entrada) {
        return std::nullopt;
    }
    const std::string bytes{std::istreambuf_iterator<char>(entrada), std::istreambuf_iterator<char>()};
    if (entrada.bad()) {
        return std::nullopt;
    }
    std::vector<std::string> linhas;
    std::size_t inicio = 0;
    while (inicio < bytes.size()) {
        const std::size_t fim = bytes.find_first_of("\r\n", inicio);
        if (fim == std::string::npos) {
            linhas.push_back(deCp1252(std::string_view(bytes).substr(inicio)));
            break;
        }
        linhas.push_back(deCp1252(std::string_view(bytes).substr(inicio, fim - inicio)));
        inicio = fim + (bytes[fim] == '\r' && fim + 1 < bytes.size() && bytes[fim + 1] == '\n' ? 2 : 1);
    }
    return linhas;
}

void gravaLinhas(const std::filesystem::path& arquivo, const std::vector<std::string>& linhas) {
    std::filesystem::path temporario = arquivo;
    temporario += ".tmp";
    {
        std::ofstream saida(temporario, std::ios::binary | std::ios::trunc);
        for (const std::string& linha : linhas) {
            saida << paraCp1252(linha) << "\r\n";
        }
        saida.close();
        if (!saida) {
            std::error_code ignorado;
            std::filesystem::remove(temporario, ignorado);
            throw std::runtime_error("falha ao gravar " + arquivo.filename().string());
        }
    }
    std::filesystem::rename(temporario, arquivo);
}

std::string_view coluna(std::string_view linha, std::size_t inicio, std::size_t largura) {
    if (inicio > linha.size()) {
        return {};
    }
    return linha.substr(inicio - 1, largura);
}

std::string_view apara(std::string_view s) {
    const std::size_t primeiro = s.find_first_not_of(" \t");
    if (primeiro == std::string_view::npos) {
        return {};
    }
    return s.substr(primeiro, s.find_last_not_of(" \t") - primeiro + 1);
}

namespace {

// from_chars knows neither "+" nor ",": both are normalised first. The second value is the number
// of characters read.
std::optional<std::pair<double, std::size_t>> pLeNumero(std::string_view s) {
    std::string texto(s.substr(!s.empty() && s.front() == '+' ? 1 : 0));
    for (char& c : texto) {
        if (c == ',') {
            c = '.';
        }
    }
    double valor = 0.0;
    const auto [fim, erro] = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    if (erro != std::errc{}) {
        return std::nullopt;
    }
    const auto lidos = static_cast<std::size_t>(fim - texto.data()) + (texto.size() < s.size() ? 1 : 0);
    return std::pair{valor, lidos};
}

}  // namespace

std::optional<double> numeroInicial(std::string_view s) {
    const auto lido = pLeNumero(apara(s));
    return lido ? std::optional{lido->first} : std::nullopt;
}

std::optional<double> numeroExato(std::string_view s) {
    const std::string_view texto = apara(s);
    const auto lido = pLeNumero(texto);
    return lido && lido->second == texto.size() ? std::optional{lido->first} : std::nullopt;
}

std::optional<int> inteiroExato(std::string_view s) {
    const auto valor = numeroExato(s);
    if (!valor || *valor != static_cast<double>(static_cast<long long>(*valor)) || *valor < -1e9 ||
        *valor > 1e9) {
        return std::nullopt;
    }
    return static_cast<int>(*valor);
}

}  // namespace solver
