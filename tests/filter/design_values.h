// Filters designed by SciPy. Made by design_values.py.
#pragma once

#include <complex>
#include <vector>

namespace zors::test {

enum class Band { lowpass, highpass, bandpass, bandstop };

struct FirDesign {
    Band band;
    double low, high; // the same for one edge
    int winType, doNormal;
    std::vector<double> taps; // up to the centre
    int tapsLen;
};

struct IirDesign {
    Band band;
    double rFreq, ripple; // 0 for Butterworth
    int order;
    std::vector<std::complex<double>> poles; // without those below the real axis
};

// clang-format off
inline const FirDesign firDesigns[] = {
    {Band::lowpass, 0.13, 0.13, 0, 0, {-0x0.0p+0, 0x1.15061db7971eap-6, 0x1.454e5efd34aa9p-4, 0x1.646905e84757ep-3, 0x1.0a3d70a3d70a4p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 0, 1, {-0x0.0p+0, 0x1.59f8946cad3e4p-6, 0x1.96451e46f2328p-4, 0x1.bd1d8e4e70f8ap-3, 0x1.4c80d00080465p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 1, 0, {0x1.46d17995c6f76p-62, -0x1.0c80a744a7b60p-59, 0x1.0d7e0fbd609cfp-5, 0x1.5006dc8c7f4cfp-3, 0x1.0a3d70a3d70a4p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 1, 1, {0x1.f3c3938a019c8p-62, -0x1.9a96b853f40e5p-59, 0x1.9c1a3a04a6dc2p-5, 0x1.00ec38f1e0002p-2, 0x1.9720ff9b16489p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 2, 0, {-0x1.a253ced431e0ep-11, 0x1.dbe279e604a53p-7, 0x1.5f54a40738e13p-4, 0x1.9b300d8bb59b0p-3, 0x1.0a3d70a3d70a4p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 2, 1, {-0x1.e61dfabde32aep-11, 0x1.1480324d93027p-6, 0x1.9843797e71556p-4, 0x1.ddd209a6e18abp-3, 0x1.3562514af14d9p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 3, 0, {-0x0.0p+0, 0x1.448dbdbd165b6p-7, 0x1.454e5efd34aa9p-4, 0x1.959ec78bc48bcp-3, 0x1.0a3d70a3d70a4p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 3, 1, {-0x0.0p+0, 0x1.84cc101e1e015p-7, 0x1.85b2d2a0fe1dap-4, 0x1.e5e90a4703b72p-3, 0x1.3ef0cb669b5a0p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 4, 0, {-0x1.46d17995c6f76p-7, 0x1.15061db7971eap-4, 0x1.454e5efd34aa9p-3, 0x1.db36b28b09ca8p-3, 0x1.0a3d70a3d70a4p-2}, 9},
    {Band::lowpass, 0.13, 0.13, 4, 1, {-0x1.1a73b0297b5d9p-7, 0x1.ded5a08282302p-5, 0x1.1925226f88943p-3, 0x1.9ab3c89398d2dp-3, 0x1.cc31cfbdab858p-3}, 9},
    {Band::lowpass, 0.13, 0.13, 0, 0, {-0x0.0p+0, -0x1.61eb227d46094p-8, -0x1.ed893aae916a5p-7, -0x1.d7f47f9cb8f5dp-7, 0x1.bb6d0b03ba7e9p-7, 0x1.35c8d5577164ep-4, 0x1.471fef676118fp-3, 0x1.e347c32f8cce4p-3}, 16},
    {Band::lowpass, 0.13, 0.13, 0, 1, {-0x0.0p+0, -0x1.893d3e5c2a7bap-8, -0x1.122f29889e373p-6, -0x1.0631e51f67f30p-6, 0x1.ecb0e99ce7a0fp-7, 0x1.5833b03b9697fp-4, 0x1.6b77fab6fa4e8p-3, 0x1.0c7c952ca7025p-2}, 16},
    {Band::lowpass, 0.13, 0.13, 1, 0, {-0x1.b31cb78573f20p-63, -0x1.2252e24ac373ap-58, -0x1.38dd2ccaec299p-10, -0x1.01908305c65dcp-8, 0x1.e895ab8c01e06p-8, 0x1.0171bae3b13dep-4, 0x1.4cf1df68eef5fp-3, 0x1.fa4b4e3a9107fp-3}, 16},
    {Band::lowpass, 0.13, 0.13, 1, 1, {-0x1.ca0af7814a987p-63, -0x1.319fbe3611a76p-58, -0x1.495a21b7d8052p-10, -0x1.0f2367793a404p-8, 0x1.012aaafbd3f3dp-7, 0x1.0f03000d86121p-4, 0x1.5e7dbf477aabap-3, 0x1.0a7cf2c09f471p-2}, 16},
    {Band::lowpass, 0.13, 0.13, 2, 0, {-0x1.1678c75fa65dbp-11, -0x1.3de9e9812f8b4p-8, -0x1.adbf122a11e56p-7, -0x1.d56bbf6007fbbp-7, 0x1.e8f239d0c9444p-7, 0x1.65cd152128171p-4, 0x1.74fb8f42987d4p-3, 0x1.004c34d5020b5p-2}, 16},
    {Band::lowpass, 0.13, 0.13, 2, 1, {-0x1.157005b70cfd1p-11, -0x1.3cbba80479441p-8, -0x1.ac267d905563ap-7, -0x1.d3ad7255dafe5p-7, 0x1.e7215c7ba35fep-7, 0x1.6478e764ad8c3p-4, 0x1.7398f276c0baap-3, 0x1.feb110536c266p-3}, 16},
    {Band::lowpass, 0.13, 0.13, 3, 0, {-0x0.0p+0, -0x1.caf7c9c97c2dep-10, -0x1.322e114dd8e74p-7, -0x1.97a4239439830p-7, 0x1.cb2a6138982ffp-7, 0x1.5c81f0025f918p-4, 0x1.71dbe04dd8699p-3, 0x1.001245ccab5d5p-2}, 16},
    {Band::lowpass, 0.13, 0.13, 3, 1, {-0x0.0p+0, -0x1.c55265c0eb737p-10, -0x1.2e69d6f6e13c0p-7, -0x1.92a0632f94492p-7, 0x1.c5845ddd1eb20p-7, 0x1.58386922d6260p-4, 0x1.6d4f1bfd72608p-3, 0x1.f9d7b20139d09p-3}, 16},
    {Band::lowpass, 0.13, 0.13, 4, 0, {-0x1.b31cb78573f20p-8, -0x1.4bcc705571a8bp-5, -0x1.ceb0a703a853bp-5, -0x1.26f8cfc1f399ap-5, 0x1.9fb63a537ed6bp-6, 0x1.d0ad40032a175p-4, 0x1.98e7eb41395f2p-3, 0x1.02e671b4e6dc3p-2}, 16},
    {Band::lowpass, 0.13, 0.13, 4, 1, {-0x1.e1a827f4aba24p-8, -0x1.6f4aa93898ddbp-5, -0x1.0017a7047c94ap-4, -0x1.46868b6820c9bp-5, 0x1.cc2e64b00f16ap-6, 0x1.0131276d49ef5p-3, 0x1.c4a5b4eb53415p-3, 0x1.1e985c7db97eep-2}, 16},
    {Band::highpass, 0.31, 0.31, 0, 0, {-0x0.0p+0, 0x1.72162ae5d5390p-7, 0x1.be415d71bf40cp-5, -0x1.c6970bdd9bb72p-3, 0x1.851eb851eb852p-2}, 9},
    {Band::highpass, 0.31, 0.31, 0, 1, {-0x0.0p+0, 0x1.968e613b2a33ep-7, 0x1.ea3b1805b52a6p-5, -0x1.f363090a5acaep-3, 0x1.ab771707ea8dcp-2}, 9},
    {Band::highpass, 0.31, 0.31, 1, 0, {0x1.454e5efd34aadp-59, -0x1.66b3deae9b17ap-60, 0x1.71b0a542a2a4fp-6, -0x1.ac977227637cbp-3, 0x1.851eb851eb852p-2}, 9},
    {Band::highpass, 0.31, 0.31, 1, 1, {0x1.81951b69a92afp-59, -0x1.a92ac05c76a87p-60, 0x1.b630b590efcf4p-6, -0x1.fc0179e9788ddp-3, 0x1.cd386f6469785p-2}, 9},
    {Band::highpass, 0.31, 0.31, 2, 0, {-0x1.a06450a0436a7p-8, 0x1.3de046bc31bebp-7, 0x1.e1f4ac99911d0p-5, -0x1.063a7d3f3d051p-2, 0x1.851eb851eb852p-2}, 9},
    {Band::highpass, 0.31, 0.31, 2, 1, {-0x1.a9e147c76f71ep-8, 0x1.451e90362b500p-7, 0x1.ecf0190993e39p-5, -0x1.0c3429db16fbdp-2, 0x1.8dfc99490b3ffp-2}, 9},
    {Band::highpass, 0.31, 0.31, 3, 0, {-0x0.0p+0, 0x1.b1955a89ee128p-8, 0x1.be415d71bf40cp-5, -0x1.02ad8b290cc6ep-2, 0x1.851eb851eb852p-2}, 9},
    {Band::highpass, 0.31, 0.31, 3, 1, {-0x0.0p+0, 0x1.ba0136cb4282fp-8, 0x1.c6ec3b8cbd137p-5, -0x1.07b3bd73372acp-2, 0x1.8cad7fecbc79bp-2}, 9},
    {Band::highpass, 0.31, 0.31, 4, 0, {-0x1.454e5efd34aadp-4, 0x1.72162ae5d5390p-5, 0x1.be415d71bf40cp-4, -0x1.2f0f5d3e67cf7p-2, 0x1.851eb851eb852p-2}, 9},
    {Band::highpass, 0.31, 0.31, 4, 1, {-0x1.59d7ca52e4507p-4, 0x1.89734dd2389b0p-5, 0x1.da6d7fb265834p-4, -0x1.42314100dd575p-2, 0x1.9daf76c312df0p-2}, 9},
    {Band::bandpass, 0.11, 0.27, 0, 0, {0x0.0p+0, -0x1.887607dad98d6p-5, -0x1.913c7553f09d3p-4, 0x1.5ad5664fe69dap-4, 0x1.47ae147ae147cp-2}, 9},
    {Band::bandpass, 0.11, 0.27, 0, 1, {0x0.0p+0, -0x1.40b6aadf05038p-4, -0x1.47e26a77cfddbp-3, 0x1.1b6d6c6369b64p-3, 0x1.0bc6803c95efcp-1}, 9},
    {Band::bandpass, 0.11, 0.27, 1, 0, {-0x1.284c766c79facp-62, 0x1.7c638acb489cap-58, -0x1.4c6519a840aafp-5, 0x1.46ff72e4189c3p-4, 0x1.47ae147ae147cp-2}, 9},
    {Band::bandpass, 0.11, 0.27, 1, 1, {-0x1.524aa2672f61fp-61, 0x1.b24ca25269d46p-57, -0x1.7b80e62dcd731p-4, 0x1.75576ef9682eep-3, 0x1.761ed073b3d1cp-1}, 9},
    {Band::bandpass, 0.11, 0.27, 2, 0, {0x1.7b4326f13ff9ap-11, -0x1.5118129a9dfb5p-5, -0x1.b155c664e524bp-4, 0x1.9023a25ac5d82p-4, 0x1.47ae147ae147cp-2}, 9},
    {Band::bandpass, 0.11, 0.27, 2, 1, {0x1.31801e0add046p-10, -0x1.0f888c4e314c4p-4, -0x1.5d0e853547f8cp-3, 0x1.425129d544e4cp-3, 0x1.07f344f285ea7p-1}, 9},
    {Band::bandpass, 0.11, 0.27, 3, 0, {0x0.0p+0, -0x1.cbcbf67519240p-6, -0x1.913c7553f09d3p-4, 0x1.8ab8a851fb61ep-4, 0x1.47ae147ae147cp-2}, 9},
    {Band::bandpass, 0.11, 0.27, 3, 1, {0x0.0p+0, -0x1.894a0c06a4ef7p-5, -0x1.5732fea90c6f6p-3, 0x1.51a06f057341ap-3, 0x1.18485818578c9p-1}, 9},
    {Band::bandpass, 0.11, 0.27, 4, 0, {0x1.284c766c79facp-7, -0x1.887607dad98d6p-3, -0x1.913c7553f09d3p-3, 0x1.ce71ddbfde278p-4, 0x1.47ae147ae147cp-2}, 9},
    {Band::bandpass, 0.11, 0.27, 4, 1, {0x1.1dd0b35ffdd89p-7, -0x1.7a9344247c4a4p-3, -0x1.830a3651df6d0p-3, 0x1.be153724dcb90p-4, 0x1.3c1613f305609p-2}, 9},
    {Band::bandpass, 0.11, 0.27, 0, 0, {0x0.0p+0, -0x1.43052a17a4666p-13, 0x1.658c6a6230142p-7, 0x1.b5d8cd9b1160cp-6, -0x1.8d5e165f355d8p-5, -0x1.4697758cabc61p-3, -0x1.9f59859323db0p-5, 0x1.f497395c07aaep-3}, 16},
    {Band::bandpass, 0.11, 0.27, 0, 1, {0x0.0p+0, -0x1.7e7ca0ea36f53p-13, 0x1.a75f2611cf8d5p-7, 0x1.0339f0c0e691bp-5, -0x1.d6856ec527853p-5, -0x1.82b73dbc1877ap-3, -0x1.ebd0570b074b5p-5, 0x1.285fa9ba97ac4p-2}, 16},
    {Band::bandpass, 0.11, 0.27, 1, 0, {0x1.6c2c6c481fe43p-60, -0x1.08fa3c8764dc0p-63, 0x1.c5510c3edf0edp-11, 0x1.dde68ffe6c32fp-8, -0x1.b5d5eb0f9e796p-6, -0x1.0f6965b46b7e7p-3, -0x1.a6bd4af092482p-5, 0x1.0636e597902b1p-2}, 16},
    {Band::bandpass, 0.11, 0.27, 1, 1, {0x1.e85f9e2275a21p-60, -0x1.6358d774c6c71p-63, 0x1.2ff5907d4aa8fp-10, 0x1.407182de26143p-7, -0x1.259431cdd96a5p-5, -0x1.6bf9c2a531683p-3, -0x1.1b74dfbdd9cbep-4, 0x1.5fa4443ebb0dcp-2}, 16},
    {Band::bandpass, 0.11, 0.27, 2, 0, {0x1.d22461a3ffdcep-9, -0x1.2228a337e5bbfp-13, 0x1.3755d2e1da5c2p-7, 0x1.b37eeffc09a2fp-6, -0x1.b628dc37eb8dcp-5, -0x1.79369d879851ap-3, -0x1.d9934d3052b9cp-5, 0x1.097a570a6b7bbp-2}, 16},
    {Band::bandpass, 0.11, 0.27, 2, 1, {0x1.fc6d957842f40p-9, -0x1.3c7afbef4d654p-13, 0x1.5393f39eefda6p-7, 0x1.db007155e8a16p-6, -0x1.dde839d6d56f5p-5, -0x1.9b6ea0bfbf66dp-3, -0x1.0244903bc084bp-4, 0x1.218f8625db506p-2}, 16},
    {Band::bandpass, 0.11, 0.27, 3, 0, {0x0.0p+0, -0x1.a2e5fecb9e251p-15, 0x1.bba1c7d7788e7p-8, 0x1.7a2e52973337dp-6, -0x1.9b78e627b1c53p-5, -0x1.6f6a643e413eep-3, -0x1.d59bf1e75074ep-5, 0x1.093e54c83b3afp-2}, 16},
    {Band::bandpass, 0.11, 0.27, 3, 1, {0x0.0p+0, -0x1.d14aa4b6cb945p-15, 0x1.ecc3ad251c7f8p-8, 0x1.a4108b8af280bp-6, -0x1.c90b0002b8a38p-5, -0x1.981b64c6358a6p-3, -0x1.04cf2ca6b7014p-4, 0x1.269e8a2eb9348p-2}, 16},
    {Band::bandpass, 0.11, 0.27, 4, 0, {0x1.6c2c6c481fe43p-5, -0x1.2ed4d7762a200p-10, 0x1.4f33a3bc0d12ep-5, 0x1.11a78080eadc7p-4, -0x1.748834f94207bp-4, -0x1.e9e3305301a92p-3, -0x1.0397f37bf668ep-4, 0x1.0c2c71039664bp-2}, 16},
    {Band::bandpass, 0.11, 0.27, 4, 1, {0x1.48f81e5364decp-5, -0x1.118e9670f9a40p-10, 0x1.2ecc4effce62ep-5, 0x1.ee669aa8976fbp-5, -0x1.50850d2ef9240p-4, -0x1.ba87ce6da93c1p-3, -0x1.d4ff6ecf9e4b0p-5, 0x1.e47fbf8b3c726p-3}, 16},
    {Band::bandstop, 0.08, 0.4, 0, 0, {0x0.0p+0, 0x1.469c84001cc40p-10, 0x1.249a27f2e4109p-3, -0x1.9ebb265cb6bf6p-6, 0x1.70a3d70a3d708p-2}, 9},
    {Band::bandstop, 0.08, 0.4, 0, 1, {0x0.0p+0, 0x1.1143c6ae717b1p-9, 0x1.e99eea9de240ep-3, -0x1.5afdd35f5aeb5p-5, 0x1.346dbd8f9d59fp-1}, 9},
    {Band::bandstop, 0.08, 0.4, 1, 0, {-0x1.e68416ab72b5fp-59, -0x1.3c9091c212fd7p-63, 0x1.e4cc953d29e53p-5, -0x1.87031ebaaadeep-6, 0x1.70a3d70a3d708p-2}, 9},
    {Band::bandstop, 0.08, 0.4, 1, 1, {-0x1.1a720c1c30241p-57, -0x1.6f8fc166683c7p-62, 0x1.1972e4bffea2ep-3, -0x1.c600886cd06fap-5, 0x1.ac069ead9abcap-1}, 9},
    {Band::bandstop, 0.08, 0.4, 2, 0, {0x1.375ec6d42074cp-7, 0x1.1888c1a72993cp-10, 0x1.3c02a60652785p-3, -0x1.de78d2b7574c8p-6, 0x1.70a3d70a3d708p-2}, 9},
    {Band::bandstop, 0.08, 0.4, 2, 1, {0x1.ed30340e9f6e6p-7, 0x1.bc58a2f405674p-10, 0x1.f489b53a83503p-3, -0x1.7aeecb38bc344p-5, 0x1.23f324866cdd9p-1}, 9},
    {Band::bandstop, 0.08, 0.4, 3, 0, {0x0.0p+0, 0x1.7ea627c45ca28p-11, 0x1.249a27f2e4109p-3, -0x1.d7fe539b2499bp-6, 0x1.70a3d70a3d708p-2}, 9},
    {Band::bandstop, 0.08, 0.4, 3, 1, {0x0.0p+0, 0x1.448173954520fp-10, 0x1.f04863a12cbafp-3, -0x1.9046348578e4cp-5, 0x1.38a0134c837a0p-1}, 9},
    {Band::bandstop, 0.08, 0.4, 4, 0, {0x1.e68416ab72b5fp-4, 0x1.469c84001cc40p-8, 0x1.249a27f2e4109p-2, -0x1.147cc43dcf2a4p-5, 0x1.70a3d70a3d708p-2}, 9},
    {Band::bandstop, 0.08, 0.4, 4, 1, {0x1.b5b4f7fa1d16ap-4, 0x1.25d833c1592a3p-8, 0x1.073f4be344350p-2, -0x1.f17f8feef4c58p-6, 0x1.4ba81c9c3cd9fp-2}, 9},
};

inline const IirDesign iirDesigns[] = {
    {Band::lowpass, 0.1, 0, 1, {{0x1.04e0850c1dd5cp-1, 0x0.0p+0}}},
    {Band::lowpass, 0.37, 0, 1, {{-0x1.956e26e56d2c0p-2, 0x0.0p+0}}},
    {Band::lowpass, 0.1, 0, 2, {{0x1.249a5ec65fe09p-1, 0x1.2ca544d8e1738p-2}}},
    {Band::lowpass, 0.37, 0, 2, {{-0x1.ce8cf0d75207fp-2, 0x1.5c4c0694c4c9ep-2}}},
    {Band::lowpass, 0.1, 0, 5, {{0x1.5e8b925903e4ap-1, 0x1.e47109b4acec3p-2}, {0x1.18b96e8e145dap-1, 0x1.df88d034d6e40p-3}, {0x1.04e0850c1dd5cp-1, 0x0.0p+0}}},
    {Band::lowpass, 0.37, 0, 5, {{-0x1.1e0d19bdc82d2p-1, 0x1.21b4680610b65p-1}, {-0x1.b8ef78f566148p-2, 0x1.13fe6407c7ee5p-2}, {-0x1.956e26e56d2c0p-2, 0x0.0p+0}}},
    {Band::lowpass, 0.1, 0, 8, {{0x1.739ab864d5dd2p-1, 0x1.08cc75a69809ep-1}, {0x1.383febe94f30cp-1, 0x1.7942441edff2fp-2}, {0x1.163c5b2aef3c1p-1, 0x1.c13bfe5fa25d6p-3}, {0x1.06bef86027120p-1, 0x1.29ef96c930e3cp-4}}},
    {Band::lowpass, 0.37, 0, 8, {{-0x1.32d97ea37d342p-1, 0x1.407ba53e030e3p-1}, {-0x1.f2eaf8e8e39cdp-2, 0x1.b9c123966f170p-2}, {-0x1.b4712a25a6c95p-2, 0x1.0235747f34cc2p-2}, {-0x1.98bddb4f426f6p-2, 0x1.53aa18f0c03f2p-4}}},
    {Band::lowpass, 0.1, 0, 12, {{0x1.80b3ac4f39368p-1, 0x1.151c6f41adca4p-1}, {0x1.522761f23772ap-1, 0x1.c5f69809cfb35p-2}, {0x1.310f53f2d35c5p-1, 0x1.5fad10dae5e99p-2}, {0x1.1a7caaad77b67p-1, 0x1.f3c41019b2b65p-3}, {0x1.0c71059713adep-1, 0x1.2a8b9d2aff736p-3}, {0x1.05b4b37ef18f7p-1, 0x1.8d17c9b93c121p-5}}},
    {Band::lowpass, 0.37, 0, 12, {{-0x1.40096a591ded1p-1, 0x1.51e3908bbf964p-1}, {-0x1.120a649b7217bp-1, 0x1.0d9c1efbc6b45p-1}, {-0x1.e584c42bea4b1p-2, 0x1.9a2ef0f14778ap-2}, {-0x1.bc2017455a899p-2, 0x1.1fe9348dcd078p-2}, {-0x1.a2dfa387fa680p-2, 0x1.556551108d3bbp-3}, {-0x1.96e5e16b9a0abp-2, 0x1.c4755b529e988p-5}}},
    {Band::lowpass, 0.1, 0.5, 1, {{0x1.285ccf4731932p-5, 0x0.0p+0}}},
    {Band::lowpass, 0.37, 0.5, 1, {{-0x1.79897edb0527dp-1, 0x0.0p+0}}},
    {Band::lowpass, 0.1, 0.5, 2, {{0x1.08ec29c0f6140p-1, 0x1.9b96c98644117p-2}}},
    {Band::lowpass, 0.37, 0.5, 2, {{-0x1.253bf6197f1b5p-1, 0x1.7f7bdd7c62ae9p-2}}},
    {Band::lowpass, 0.1, 0.5, 5, {{0x1.81c30e268358ap-1, 0x1.1cb6d711e942fp-1}, {0x1.87dcc1b7f8f9bp-1, 0x1.4f467059b9d2fp-2}, {0x1.942595b565c6cp-1, 0x0.0p+0}}},
    {Band::lowpass, 0.37, 0.5, 5, {{-0x1.4922e7667ae42p-1, 0x1.5397ebe389dd6p-1}, {-0x1.4307f790605ffp-2, 0x1.2dde5c2afa046p-1}, {0x1.6ac94f27c2974p-4, 0x0.0p+0}}},
    {Band::lowpass, 0.1, 0.5, 8, {{0x1.92d87e4b3d080p-1, 0x1.26903ad4a0ac5p-1}, {0x1.9730ba5ca4654p-1, 0x1.e92d7f89856aap-2}, {0x1.a92732751fc0ap-1, 0x1.46f252b385a09p-2}, {0x1.b863920b45034p-1, 0x1.cdf942b1c8c4bp-4}}},
    {Band::lowpass, 0.37, 0.5, 8, {{-0x1.55595aa8c9809p-1, 0x1.68084ab82b88bp-1}, {-0x1.11cc78196f590p-1, 0x1.6c62aa292a419p-1}, {-0x1.f0994876a81e6p-3, 0x1.64e7eb2da33d5p-1}, {0x1.b4d9d3325e312p-3, 0x1.7ceac5dfedee7p-2}}},
    {Band::lowpass, 0.1, 0.5, 12, {{0x1.991eff8c4b6e9p-1, 0x1.2a1a524386b4ap-1}, {0x1.9b74be0135c01p-1, 0x1.132adbbf59843p-1}, {0x1.a6e1d0457e308p-1, 0x1.d95d4c2b041bep-2}, {0x1.b6ffc05c689d0p-1, 0x1.6e51e9ccd3ce8p-2}, {0x1.c656a09fec5dbp-1, 0x1.d12a79b4a3bacp-3}, {0x1.cfa6de1ab4c72p-1, 0x1.3f6190f7c26fbp-4}}},
    {Band::lowpass, 0.37, 0.5, 12, {{-0x1.5a4b47df99f83p-1, 0x1.6f5cd60621715p-1}, {-0x1.3cecc7a890b66p-1, 0x1.7432954655f01p-1}, {-0x1.033327a48f7ecp-1, 0x1.83a092ff18231p-1}, {-0x1.346e0afcf656ep-2, 0x1.9003210747eccp-1}, {0x1.44a16004e89a6p-5, 0x1.69634112a3526p-1}, {0x1.ad2614c6cb253p-2, 0x1.4ab0404c4a413p-2}}},
    {Band::lowpass, 0.1, 3, 1, {{0x1.046d3c850f199p-1, 0x0.0p+0}}},
    {Band::lowpass, 0.37, 3, 1, {{-0x1.967477b9a2673p-2, 0x0.0p+0}}},
    {Band::lowpass, 0.1, 3, 2, {{0x1.70ded20a0a15fp-1, 0x1.92ace976b2972p-2}}},
    {Band::lowpass, 0.37, 3, 2, {{-0x1.c60c608915408p-2, 0x1.25441a4428478p-1}}},
    {Band::lowpass, 0.1, 3, 5, {{0x1.96b6dcf5d9719p-1, 0x1.1b49ae96039d1p-1}, {0x1.b1dc0b6832a04p-1, 0x1.5e9340ff1e8efp-2}, {0x1.c82765f20dd4ap-1, 0x0.0p+0}}},
    {Band::lowpass, 0.37, 3, 5, {{-0x1.4772de86c282cp-1, 0x1.6d981a2de2365p-1}, {-0x1.1a2d2257bf908p-2, 0x1.802d3b1d950abp-1}, {0x1.ac3a015412f0ap-2, 0x0.0p+0}}},
    {Band::lowpass, 0.1, 3, 8, {{0x1.9b46ffb54bf32p-1, 0x1.25f5c37ef9de2p-1}, {0x1.a962c68bcef14p-1, 0x1.f39a7d86c31efp-2}, {0x1.c44d16fa1bfdep-1, 0x1.541a7248f4cddp-2}, {0x1.d9655402aa12dp-1, 0x1.e5a22e695f9ddp-4}}},
    {Band::lowpass, 0.37, 3, 8, {{-0x1.55682d4d0259ep-1, 0x1.728643812bf90p-1}, {-0x1.180717a3b565dp-1, 0x1.88ac33a4aabfep-1}, {-0x1.d1a0f04eeb061p-3, 0x1.a56b0e0ae63e7p-1}, {0x1.a72a98492ece1p-2, 0x1.066aa49b96929p-1}}},
    {Band::lowpass, 0.1, 3, 12, {{0x1.9ce8b4c0e825ap-1, 0x1.29d3b0c457fb6p-1}, {0x1.a3cf42d919b78p-1, 0x1.15eddd7e273ddp-1}, {0x1.b3c7ef78d1da6p-1, 0x1.e2eb32237175ap-2}, {0x1.c83d3d02409f0p-1, 0x1.78e9fe4975a12p-2}, {0x1.db292572df36ep-1, 0x1.e1a901881656ep-3}, {0x1.e68b2d346752ap-1, 0x1.4bd59cb30917dp-4}}},
    {Band::lowpass, 0.37, 3, 12, {{-0x1.5a70e13ad7e06p-1, 0x1.7412a2d548839p-1}, {-0x1.413a6d4c0b88fp-1, 0x1.7f6b5faf48e27p-1}, {-0x1.0a2e84d84fcb6p-1, 0x1.99760f25f80d3p-1}, {-0x1.3ade779706946p-2, 0x1.b8a3f7577143ep-1}, {0x1.6c33814ab54e8p-4, 0x1.ab3203460be19p-1}, {0x1.35294254071b6p-1, 0x1.a8fec756aae09p-2}}},
    {Band::highpass, 0.1, 0, 1, {{0x1.04e0850c1dd5cp-1, 0x0.0p+0}}},
    {Band::highpass, 0.37, 0, 1, {{-0x1.956e26e56d2c0p-2, 0x0.0p+0}}},
    {Band::highpass, 0.1, 0, 2, {{0x1.249a5ec65fe09p-1, 0x1.2ca544d8e1738p-2}}},
    {Band::highpass, 0.37, 0, 2, {{-0x1.ce8cf0d752080p-2, 0x1.5c4c0694c4c9ep-2}}},
    {Band::highpass, 0.1, 0, 5, {{0x1.04e0850c1dd5cp-1, 0x0.0p+0}, {0x1.18b96e8e145dap-1, 0x1.df88d034d6e40p-3}, {0x1.5e8b925903e4ap-1, 0x1.e47109b4acec3p-2}}},
    {Band::highpass, 0.37, 0, 5, {{-0x1.956e26e56d2c0p-2, 0x0.0p+0}, {-0x1.b8ef78f566147p-2, 0x1.13fe6407c7ee5p-2}, {-0x1.1e0d19bdc82d2p-1, 0x1.21b4680610b65p-1}}},
    {Band::highpass, 0.1, 0, 8, {{0x1.06bef86027120p-1, 0x1.29ef96c930e3cp-4}, {0x1.163c5b2aef3c1p-1, 0x1.c13bfe5fa25d6p-3}, {0x1.383febe94f30cp-1, 0x1.7942441edff2fp-2}, {0x1.739ab864d5dd2p-1, 0x1.08cc75a69809ep-1}}},
    {Band::highpass, 0.37, 0, 8, {{-0x1.98bddb4f426f6p-2, 0x1.53aa18f0c03f2p-4}, {-0x1.b4712a25a6c95p-2, 0x1.0235747f34cc2p-2}, {-0x1.f2eaf8e8e39cdp-2, 0x1.b9c123966f170p-2}, {-0x1.32d97ea37d342p-1, 0x1.407ba53e030e3p-1}}},
    {Band::highpass, 0.1, 0, 12, {{0x1.05b4b37ef18f7p-1, 0x1.8d17c9b93c121p-5}, {0x1.0c71059713adep-1, 0x1.2a8b9d2aff736p-3}, {0x1.1a7caaad77b67p-1, 0x1.f3c41019b2b65p-3}, {0x1.310f53f2d35c5p-1, 0x1.5fad10dae5e99p-2}, {0x1.522761f23772ap-1, 0x1.c5f69809cfb35p-2}, {0x1.80b3ac4f39368p-1, 0x1.151c6f41adca3p-1}}},
    {Band::highpass, 0.37, 0, 12, {{-0x1.96e5e16b9a0aep-2, 0x1.c4755b529e988p-5}, {-0x1.a2dfa387fa680p-2, 0x1.556551108d3bbp-3}, {-0x1.bc2017455a899p-2, 0x1.1fe9348dcd078p-2}, {-0x1.e584c42bea4b1p-2, 0x1.9a2ef0f14778ap-2}, {-0x1.120a649b7217bp-1, 0x1.0d9c1efbc6b45p-1}, {-0x1.40096a591ded1p-1, 0x1.51e3908bbf964p-1}}},
    {Band::highpass, 0.1, 0.5, 1, {{0x1.979fd473b263ap-1, 0x0.0p+0}}},
    {Band::highpass, 0.37, 0.5, 1, {{0x1.b4f399388ac6ap-4, 0x0.0p+0}}},
    {Band::highpass, 0.1, 0.5, 2, {{0x1.5a66aed98f453p-1, 0x1.407213aa97f06p-2}}},
    {Band::highpass, 0.37, 0.5, 2, {{-0x1.81c09006ed73bp-2, 0x1.d41f644721badp-2}}},
    {Band::highpass, 0.1, 0.5, 5, {{0x1.bdd01f8a528bfp-5, 0x0.0p+0}, {0x1.ebd652bdf1ff8p-2, 0x1.0d272617dfdb3p-1}, {0x1.8846ab4f63503p-1, 0x1.15356a5b47ce8p-1}}},
    {Band::highpass, 0.37, 0.5, 5, {{-0x1.75355be29a604p-1, 0x0.0p+0}, {-0x1.5b34d17ade145p-1, 0x1.9c9074e613a19p-2}, {-0x1.3fb3655dcea3fp-1, 0x1.5b3e931c06e79p-1}}},
    {Band::highpass, 0.1, 0.5, 8, {{-0x1.ab000c2e3ff88p-5, 0x1.8bc16c8845acep-2}, {0x1.baf7fe92aa688p-2, 0x1.43c35e1c99931p-1}, {0x1.5ee7a4a02566ap-1, 0x1.31975c6a4c9b5p-1}, {0x1.94fcf038a54a1p-1, 0x1.23d1e5226a668p-1}}},
    {Band::highpass, 0.37, 0.5, 8, {{-0x1.a17231cb7a166p-1, 0x1.25bddcc15f68fp-3}, {-0x1.84eaa47db5cbap-1, 0x1.9ad5d985d6235p-2}, {-0x1.61c67d7ea3e9fp-1, 0x1.2eec08a056002p-1}, {-0x1.5222e0c966898p-1, 0x1.6ae096429120dp-1}}},
    {Band::highpass, 0.1, 0.5, 12, {{-0x1.1b8a4f10e9fd2p-2, 0x1.6d8494edcf229p-2}, {0x1.62b4c423e4b1fp-3, 0x1.627acb12e6a14p-1}, {0x1.ff74eb41faad0p-2, 0x1.644ee47747d2ap-1}, {0x1.569f6d5fb0d62p-1, 0x1.47254e94fecd9p-1}, {0x1.83405c744e4f8p-1, 0x1.313faae375ffcp-1}, {0x1.9a0230ad8409bp-1, 0x1.28eba08705742p-1}}},
    {Band::highpass, 0.37, 0.5, 12, {{-0x1.bff1f890e1820p-1, 0x1.9c45fe2e3fd29p-4}, {-0x1.af19680ebdc15p-1, 0x1.2a1813804cd8ap-2}, {-0x1.9391adadd5d82p-1, 0x1.d0072eef65082p-2}, {-0x1.7690fb856d879p-1, 0x1.2820d61e80730p-1}, {-0x1.60db02f80764dp-1, 0x1.552b900eeda52p-1}, {-0x1.58f1dc31f79f5p-1, 0x1.7098c5d408ccdp-1}}},
    {Band::highpass, 0.1, 3, 1, {{0x1.0553a9e4023eap-1, 0x0.0p+0}}},
    {Band::highpass, 0.37, 3, 1, {{-0x1.946796e7e886ep-2, 0x0.0p+0}}},
    {Band::highpass, 0.1, 3, 2, {{0x1.2d76c033654cdp-1, 0x1.f97db4f2f9ea1p-2}}},
    {Band::highpass, 0.37, 3, 2, {{-0x1.3a9d1f608179cp-1, 0x1.e7e8cb8c60717p-2}}},
    {Band::highpass, 0.1, 3, 5, {{-0x1.2c61b67b4545fp-2, 0x0.0p+0}, {0x1.e29fbd502b379p-2, 0x1.58e2ac6cb08a8p-1}, {0x1.8ab3a269b7847p-1, 0x1.2a55d6af2641ep-1}}},
    {Band::highpass, 0.37, 3, 5, {{-0x1.b6f1c72da643ap-1, 0x0.0p+0}, {-0x1.8e3c422966de1p-1, 0x1.bac57a64e09bcp-2}, {-0x1.5954318298ba6p-1, 0x1.5e0c5e0a9ca26p-1}}},
    {Band::highpass, 0.1, 3, 8, {{-0x1.f4223f44e68eep-3, 0x1.20808ba29d8c6p-1}, {0x1.c576d7856363bp-2, 0x1.7e7c76c634d5cp-1}, {0x1.689946167a5e0p-1, 0x1.47cdc331879bbp-1}, {0x1.9698f2dcd8bb4p-1, 0x1.2c2b180c63f58p-1}}},
    {Band::highpass, 0.37, 3, 8, {{-0x1.cbb077ebde6e2p-1, 0x1.3b5495925ef1fp-3}, {-0x1.a6404a26d7027p-1, 0x1.b2a9112ec625ep-2}, {-0x1.7729461f2ed67p-1, 0x1.38d620aa8bff9p-1}, {-0x1.5c82ec93853d3p-1, 0x1.6c0c9c5a1f516p-1}}},
    {Band::highpass, 0.1, 3, 12, {{-0x1.e4f6559a09b63p-2, 0x1.f0485ddddba33p-2}, {0x1.3a527ee2188b7p-3, 0x1.a7386144b1df3p-1}, {0x1.0a81cd12c54c8p-1, 0x1.86e572eea7d1ep-1}, {0x1.6022031818f29p-1, 0x1.57f0d520ae431p-1}, {0x1.8877ae9206615p-1, 0x1.3998afcbb57f9p-1}, {0x1.9ad5226baaa78p-1, 0x1.2ca372c1e6b32p-1}}},
    {Band::highpass, 0.37, 3, 12, {{-0x1.dda6427fd416cp-1, 0x1.b2ab1c3be10b8p-4}, {-0x1.c97c27f4adc57p-1, 0x1.38c1d837102d0p-2}, {-0x1.a89464178f43ap-1, 0x1.e296afcd8fd73p-2}, {-0x1.85af4e8b5a216p-1, 0x1.307df76c80165p-1}, {-0x1.6a7dc0c464641p-1, 0x1.5a57c0877ad5cp-1}, {-0x1.5d9db4a55d4a6p-1, 0x1.712161f1a04c1p-1}}},
};
// clang-format on

} // namespace zors::test
