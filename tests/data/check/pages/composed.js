.pragma library

function note() {
    return services.optical.start()
}

function broken( {
}
