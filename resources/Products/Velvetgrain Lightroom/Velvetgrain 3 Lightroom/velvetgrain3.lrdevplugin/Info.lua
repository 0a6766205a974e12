return {
    LrSdkVersion = 3.0,
    LrToolkitIdentifier = "example.corvellane.velvetgrain3",
    LrPluginName = "Corvellane Velvetgrain 3",
}
